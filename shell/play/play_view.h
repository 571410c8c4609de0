// The play screen drawn as a whole.
#pragma once

namespace gloomdeck {

/// Draws the whole play screen for the game as it stands.
void openPlayScreen();

}  // namespace gloomdeck
