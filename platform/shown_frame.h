// The frame that the display shows, and the rows in which a new one differs from it.
#pragma once

#include <span>
#include <vector>

#include "platform/geometry.h"
#include "platform/image.h"

namespace gloomdeck {

struct ShownFrame {
    Image picture;
    std::vector<Rows> differing;  // what takeOver answers, kept for its memory
};

/// Takes over what differs in those rows of a frame of the same size, and looks at no others. Answers where
/// that was: stretches of rows that do not touch, from the top down, none where nothing differs. They are
/// good until the next call.
std::span<const Rows> takeOver(ShownFrame& shown, const Image& frame, Rows rows);

}  // namespace gloomdeck
