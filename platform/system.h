// The program's end, wanted and unwanted.
#pragma once

namespace gloomdeck {

/// Names what is to be called whenever the window may be gone for good without the player's having been
/// asked. The program may live on after it.
void onWindowLost(void (*save)());

/// Closes the window and ends the program with that exit code.
[[noreturn]] void endProgram(int exitCode);

}  // namespace gloomdeck
