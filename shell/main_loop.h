// The program's life: start-up, the play screen's loop, the end.
#pragma once

namespace gloomdeck {

/// Lays out the widgets, opens the window, shows the title, loads pictures and saved data, and enters play.
void startUp();

/// Runs the play screen until the player leaves it.
void runMainLoop();

/// The whole program; does not return.
[[noreturn]] void runGloomdeck();

}  // namespace gloomdeck
