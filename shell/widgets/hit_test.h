// The one hit test of every widget, with the pressed look that it draws.
#pragma once
#include "shell/widgets/button.h"

namespace gloomdeck {

enum class Phase { press = 1, release = 2, hover = 3 };

/// 1 when the pointer counts as inside, else 0. A press draws the pressed look and notes the cell, a release
/// only compares with the pressed cell, a hover only with the widget.
int hitTest(Button& b, int px, int py, Phase phase);

/// Column (x) and row (y) of the cell under a place inside the widget.
Point cellUnder(const Button& b, int px, int py);

/// The cell's top left corner.
Point cellCorner(const Button& b, int col, int row);

}  // namespace gloomdeck
