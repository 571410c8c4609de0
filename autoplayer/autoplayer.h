// The autoplayer: plays the hero's moves within what the preferences allow.
#pragma once

namespace gloomdeck {

/// Plays one move after another, each followed by the board's turn, until it finds none or the player
/// interrupts it. With its five switches off it returns at once.
void RunAutoplayer();

}  // namespace gloomdeck
