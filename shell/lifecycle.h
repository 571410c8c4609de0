// Asking the player before something is lost, and the orderly end.
#pragma once

#include <string>

namespace gloomdeck {

/// 1 for yes, 0 for anything else. With skip 1 the answer is yes without asking. Keys that wait are thrown
/// away either way.
int confirm(const std::string& question, int skip);

/// Frees the pictures and saves the preferences and the game.
void shutDown();

/// What the host calls when the window may be gone for good: saves the records as at the last return to a
/// loop, but never after shutDown, which has saved later ones.
void saveAfterLoss();

/// Forgets that a run was saved (tests start from here).
void resetLifecycle();

}  // namespace gloomdeck
