// The screen on which gold is spent.
#pragma once

namespace gloomdeck {

/// Runs the training and trading screen until it is left; it takes no turn. The caller draws the play screen
/// again.
void TrainingScreen();

}  // namespace gloomdeck
