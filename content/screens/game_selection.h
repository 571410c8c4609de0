// The screen on which the player chooses what to play and names the hero.
#pragma once

namespace gloomdeck {

/// Shows the screen until a game is started: true, the preferences hold the choice and the game is set up.
/// False when the player leaves the program instead; nothing is stored then.
bool runGameSelection();

}  // namespace gloomdeck
