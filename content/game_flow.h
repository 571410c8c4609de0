// From the player's choice to a running game.
#pragma once

namespace gloomdeck {

/// Starts the game that the preferences choose: a fresh hero and the first board.
void startNewGame();

/// Draws the whole play screen for the game as it stands.
void openPlayScreen();

}  // namespace gloomdeck
