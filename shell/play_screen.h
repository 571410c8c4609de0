// The play screen: what each of its widgets does, and how it becomes current.
#pragma once
#include "shell/widgets/screen.h"

namespace gloomdeck {

/// Board and stats column are tested only while the scenario is not over.
extern const Screen playScreen;

/// Draws the play screen afresh, without targeting mode, press or hover, and lets the autoplayer act once.
void enterPlayScreen();

/// A click on an item's row: casts, arms a mode, opens the training screen or tells the count; 1 when it used
/// a turn.
int clickStats(int row);

}  // namespace gloomdeck
