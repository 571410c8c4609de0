// The help screens.
#pragma once

namespace gloomdeck {

/// Shows the help until the player leaves it. The caller draws the play screen again.
void runHelpScreen();

}  // namespace gloomdeck
