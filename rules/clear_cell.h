// What is left in a cell after an encounter or a spell.
#pragma once

namespace gloomdeck {

/// Leaves in the cell what its type leaves and reveals it; true when the cell is now Empty and a column may
/// advance over it. A Cave's contents are drawn here, The End stays.
bool ClearCell(int col, int row);

}  // namespace gloomdeck
