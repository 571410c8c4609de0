// The targeting modes: arming and cancelling.
#pragma once

namespace gloomdeck {

/// Sets the mode (namespace target), redraws its icon and prompts for a target.
void setTargetMode(int mode);

/// Ends a mode with a message; without one only the icon is redrawn.
void cancelTargetMode();

}  // namespace gloomdeck
