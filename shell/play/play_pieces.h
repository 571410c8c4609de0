// Small fixed pieces of the play screen that are refreshed one by one.
#pragma once

namespace gloomdeck {

/// The icon of the current targeting mode below the board.
void drawModeIcon();

/// The tile of the current targeting mode; the Empty tile for none.
int modeTile();

/// Blanks the information area.
void clearInfoArea();

}  // namespace gloomdeck
