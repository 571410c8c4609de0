// The depth of the lock; the outermost pair locks and shows.
#include "shell/widgets/screen_lock.h"

#include "platform/frame.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

void holdScreen() {
    if (ui.lockDepth == 0) lockScreen();
    ++ui.lockDepth;
}

void releaseScreen() {
    if (--ui.lockDepth > 0) return;
    waitForVerticalRetrace();
    unlockScreen();
}

}  // namespace gloomdeck
