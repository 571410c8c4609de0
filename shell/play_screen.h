// Making the play screen current.
#pragma once

namespace gloomdeck {

/// Draws the play screen afresh, without targeting mode, press or hover, and lets the autoplayer act once.
void enterPlayScreen();

}  // namespace gloomdeck
