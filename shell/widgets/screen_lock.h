// The nesting screen lock that batches drawing: everything between the outermost pair appears at once.
#pragma once

namespace gloomdeck {

void holdScreen();

/// Ends one level; the last one waits for the vertical retrace and shows the frame.
void releaseScreen();

/// The pair as a scope, so that no early return leaves the screen locked.
struct HeldScreen {
    HeldScreen() { holdScreen(); }
    ~HeldScreen() { releaseScreen(); }
    HeldScreen(const HeldScreen&) = delete;
    HeldScreen& operator=(const HeldScreen&) = delete;
};

}  // namespace gloomdeck
