// The display of a cleared board.
#pragma once

namespace gloomdeck {

/// Draws the score and the banner; a campaign that goes on gets its Continue button.
void showScenarioEnd();

/// True when a single scenario is over or a campaign is won.
bool isGameOver();

}  // namespace gloomdeck
