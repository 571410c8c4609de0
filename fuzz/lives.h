// Whole lives of the program, one after the other in one folder, played by a fuzzed input and checked.
#pragma once

#include "fuzz/input_bytes.h"
#include "tools/common/program_folder.h"

namespace gloomdeck::fuzz {

/// Starts the program in the folder and plays the input until it has no more to say; then the window is
/// closed. Where the program ends earlier it is started again, a few times. Calls fault when the program does
/// not come to its end, when its records break a promise, or when it saves anything but its records.
/// The input's first byte says whether all of the frame is drawn: a small one leaves time to play more.
void playLives(const ProgramFolder& folder, InputBytes& bytes);

}  // namespace gloomdeck::fuzz
