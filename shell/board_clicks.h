// What a click on the board means.
#pragma once

namespace gloomdeck {

/// A click on a board cell, by the targeting mode; 1 when it used a turn.
int clickBoard(int col, int row);

}  // namespace gloomdeck
