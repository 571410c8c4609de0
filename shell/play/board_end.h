// The end of a board: score, banner, and the way on.
#pragma once

namespace gloomdeck {

/// Draws the score, with its standing, over the row of column counters.
void ShowScoreLine();

}  // namespace gloomdeck
