// The program's end, wanted and unwanted, and what it says besides its picture.
#pragma once

#include <string>

namespace gloomdeck {

/// Says a text that the picture shows anyhow, to readers who do not see it.
void tell(const std::string& text);

/// Names what is to be called whenever the window may be gone for good without the player's having been
/// asked. The program may live on after it.
void onWindowLost(void (*save)());

/// Closes the window and ends the program with that exit code.
[[noreturn]] void endProgram(int exitCode);

}  // namespace gloomdeck
