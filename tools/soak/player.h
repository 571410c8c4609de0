// A player who does anything at any time, but mostly what makes sense on the screen.
#pragma once

#include <cstdint>

#include "platform/input_queue.h"

namespace gloomdeck::soak {

void seedPlayer(std::uint64_t seed);

/// True once in so many times.
bool oneIn(int times);

/// Something for a program that waits.
void act(InputQueue& queue);

/// Something for a program that is busy, now and then.
void interrupt(InputQueue& queue);

}  // namespace gloomdeck::soak
