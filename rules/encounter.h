// Meeting a tile. Rules answer 1 (it took place and used a turn) or 0 (refused: nothing spent but what a
// Master Thief took, the message bar says why). The caller runs BoardTurn after a 1.
#pragma once

namespace gloomdeck {

/// Meets the tile at (col, row); a cleared cell lets the column advance unless stayPut (the Hand).
int Encounter(int col, int row, int stayPut);

}  // namespace gloomdeck
