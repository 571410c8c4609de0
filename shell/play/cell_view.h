// Drawing and animating single board cells. Times are milliseconds at the normal game speed.
#pragma once

namespace gloomdeck {

/// The cell as it is, whatever hides it.
void drawCellTile(int col, int row);

/// Terrain with another tile on it.
void drawTileInCell(int tileNumber, int col, int row);

/// Lays a tile over what the cell shows; alpha 0 puts it whole.
void overlayTile(int tileNumber, int col, int row, int alpha = 0);

}  // namespace gloomdeck
