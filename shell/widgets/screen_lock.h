// The nesting screen lock that batches drawing: everything between the outermost pair appears at once.
#pragma once
#include "rules/show.h"

namespace gloomdeck {

/// The pair as a scope, so that no early return leaves the screen locked.
struct HeldScreen {
    HeldScreen() { holdScreen(); }
    ~HeldScreen() { releaseScreen(); }
    HeldScreen(const HeldScreen&) = delete;
    HeldScreen& operator=(const HeldScreen&) = delete;
};

}  // namespace gloomdeck
