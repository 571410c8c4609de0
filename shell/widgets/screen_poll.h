// The pass that the modal screens share: draw; while (!done) handle (pollScreen ());
#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"

namespace gloomdeck {

struct ScreenEvent {
    bool click = false;  // a click completed in this pass
    int clicked = -1;    // the button's id, or -1 for a list or menu choice
    std::string key;     // read only when no click completed; empty for none
};

/// One pass: a pause, the mouse first, and a key only when no click completed. With nothing to do it waits
/// for input, at most until the deadline (on the clock of timer).
ScreenEvent pollScreen(double deadline = noDeadline);

/// True for the keys that leave the training, preferences and help screens.
bool leavesScreen(std::string_view key);

}  // namespace gloomdeck
