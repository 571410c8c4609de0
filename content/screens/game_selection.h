// The screen on which the player chooses what to play and names the hero.
#pragma once

namespace gloomdeck {

/// Shows the screen until a game is started; then the preferences hold the choice and the game is set up.
/// Leaving with Exit saves and ends the program.
void runGameSelection();

}  // namespace gloomdeck
