// From the player's choice to a running game.
#pragma once

namespace gloomdeck {

/// Starts the game that the preferences choose: a fresh hero and the first board.
void startNewGame();

/// True when a single scenario is over or a campaign is won.
bool isGameOver();

}  // namespace gloomdeck
