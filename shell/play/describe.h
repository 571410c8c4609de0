// What the information area tells about the hovered cell, and the framed pictures it shares with the help.
#pragma once

namespace gloomdeck {

void describeBoardCell(int col, int row);
void describeItem(int row);

/// The picture frame at (x, y) with a tile on it.
void drawFramedTile(int tileNumber, int x, int y);

/// A framed bomb, covered when the encounter holds nothing to blow up.
void drawBombBox(int code, int x, int y);

}  // namespace gloomdeck
