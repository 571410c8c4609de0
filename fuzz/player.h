// The player that a fuzzed input describes: each of its bytes says what is done next, those behind it where.
#pragma once

#include "fuzz/input_bytes.h"
#include "platform/input_queue.h"

namespace gloomdeck::fuzz {

/// Thrown out of the program when the window system takes it down.
struct WindowLost {};

/// When the next input is to come; whatever comes first counts.
struct Timing {
    int polls = 0;   // at that many polls from now; 0: not at a poll
    int pauses = 0;  // at that many pauses from now
};

/// Does the next thing of the input and says when the one after it may come before the program rests. How
/// many things were done stands on standard error when the process ends.
Timing playNext(InputBytes& bytes, InputQueue& queue);

}  // namespace gloomdeck::fuzz
