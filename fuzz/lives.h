// Whole lives of the program, one after the other in one folder, played by a fuzzed input and checked.
#pragma once

#include "fuzz/input_bytes.h"
#include "tools/common/program_folder.h"

namespace gloomdeck::fuzz {

/// What the program starts from: records that keep all promises, or any.
enum class Records { sound, damaged };

/// Starts the program in the folder and plays the input until it has no more to say; then the window is
/// closed. Where the program ends earlier it is started again, a few times. Calls fault when the program does
/// not come to its end, when sound records break a promise (damaged ones must keep them as soon as a new
/// board is dealt), or when it saves anything but its records. The input's first byte says whether all of the
/// frame is drawn: a small one leaves time to play more.
void playLives(const ProgramFolder& folder, InputBytes& bytes, Records records);

}  // namespace gloomdeck::fuzz
