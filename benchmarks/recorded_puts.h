// What the game puts on the frame, written down on its way there.
#pragma once

#include <vector>

#include "platform/draw.h"

namespace gloomdeck {

struct Put {
    int x = 0;
    int y = 0;
    const Image* image = nullptr;
    PutMode mode;
};

/// From now on every put of the game is added to the list, until none is given.
void recordPuts(std::vector<Put>* list);

}  // namespace gloomdeck
