// What clicks on the board and on the stats column mean.
#pragma once

namespace gloomdeck {

/// A click on a board cell, by the targeting mode; 1 when it used a turn.
int clickBoard(int col, int row);

/// A click on an item's row: casts, arms a mode, opens the training screen or tells the count; 1 when it used
/// a turn.
int clickStats(int row);

}  // namespace gloomdeck
