// Drawing the board: columns with their terrain, what an eye hides, counters and names.
#pragma once

namespace gloomdeck {

/// All seven columns and the white frame, as one change on screen.
void drawBoard();

/// One column, as one change on screen. An eye's beam takes one Roll.
void drawColumn(int col);

}  // namespace gloomdeck
