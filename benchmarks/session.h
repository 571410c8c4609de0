// Games that are played without a window, for what is measured on them.
#pragma once

#include <cstdint>
#include <vector>

#include "rules/game_state.h"

namespace gloomdeck {

inline constexpr int movesOfGames = 1000;  ///< one game after the other, with and without a picture
inline constexpr double displayPeriod = 1.0 / 60;

/// Lays out the program as its start does, with the pictures in the folder's gfx and the display at rest.
void startSession(const char* folder);

/// Deals a game of the scenario (0 to 6); the same seed gives the same game.
void startGame(int scenario, std::uint64_t seed);

/// The autoplayer's next move, drawn; false when it finds none.
bool playMove();

/// Positions of games of every scenario with so many seeds: every so many moves up to the last, one is taken.
std::vector<GameState> positionsOfGames(std::uint64_t seeds, int step, int last);

}  // namespace gloomdeck
