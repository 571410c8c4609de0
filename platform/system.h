// The program's end, wanted and unwanted.
#pragma once

namespace gloomdeck {

/// Names what is to be called, once at most, when the window system takes the program down without asking.
void onWindowLost(void (*save)());

/// Closes the window and ends the program with that exit code.
[[noreturn]] void endProgram(int exitCode);

}  // namespace gloomdeck
