// Drawing the hero: a row for each item, the skills beside them, the powers below the board. Everything here
// reads the records and changes nothing.
#pragma once

namespace gloomdeck {

/// The item's icon on its plain cell.
void drawStatsCell(int row);

}  // namespace gloomdeck
