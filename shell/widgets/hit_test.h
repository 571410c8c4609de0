// The one hit test of every widget, with the feedback that it draws.
#pragma once

#include "shell/widgets/button.h"

namespace gloomdeck {

enum class Phase { press = 1, release = 2, hover = 3 };

/// 1 when the pointer counts as inside, else 0. A press draws the pressed look and notes the cell, a hover
/// moves the highlight and describes the cell, a release only compares with the pressed cell.
int hitTest(Button& b, int px, int py, Phase phase);

/// Removes a grid's hover highlight and blanks the information area, if any cell is hovered.
void leaveHover(Button& gridWidget);

}  // namespace gloomdeck
