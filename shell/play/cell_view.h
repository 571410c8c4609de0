// Drawing and animating single board cells. Times are milliseconds at the normal game speed.
#pragma once

namespace gloomdeck {

/// The cell's terrain and tile; a cell that an eye hides stays as it is.
void redrawCell(int col, int row);

/// The cell as it is, whatever hides it.
void drawCellTile(int col, int row);

/// Terrain with another tile on it.
void drawTileInCell(int tileNumber, int col, int row);

/// Lays a tile over what the cell shows; alpha 0 puts it whole.
void overlayTile(int tileNumber, int col, int row, int alpha = 0);

/// Uncovers the cell from the top, 31 steps of d milliseconds.
void revealWipe(int col, int row, int d);

/// Wipes the cell away to the bare terrain.
void vanishWipe(int col, int row);

/// Shows a tile over the cell and waits.
void flashTile(int tileNumber, int col, int row, int d, int alpha = 0);

/// Shows the cell with an overlay and the cell empty, in turn.
void blinkCell(int overlay, int col, int row, int times, int d);

/// Shrinks a tile away into the middle of the cell.
void shrinkTile(int tileNumber, int col, int row);

}  // namespace gloomdeck
