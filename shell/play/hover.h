// What the pointer over the board and over the stats column shows: a glow, and what lies there.
#pragma once
#include "shell/widgets/button.h"

namespace gloomdeck {

// Of the grid's hovered cell. Leaving gives the board's square back as it was saved.
void hoverTile(const Button& board);
void leaveTile(const Button& board);
void hoverItem(const Button& stats);
void leaveItem(const Button& stats);

}  // namespace gloomdeck
