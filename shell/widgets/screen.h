// Screens: which one stands, and the one loop that runs those that open over the play screen.
#pragma once
#include <functional>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "shell/widgets/mouse.h"

namespace gloomdeck {

struct Screen {
    int id;  // as the preferences keep it (namespace screen_id)
    const char* title;
    WidgetTable widgets;
};

/// Makes it the screen that stands: the window's title, its widgets, and no press from before.
void enterScreen(const Screen& screen);

struct ScreenEvent {
    bool click = false;  // a click completed in this pass
    int clicked = -1;    // the button's id, or -1 for a list or menu choice
    std::string key;     // read only when no click completed; empty for none
};

struct ModalScreen {
    Screen screen;
    std::function<void()> draw;                      // all of it, as one change
    std::function<bool(const ScreenEvent&)> handle;  // false leaves the screen
    std::function<double()> wakeUp = [] {
        return noDeadline;
    };  // when a pass is due without input, by timer()
};

/// Opens the screen and runs it until it is left: in each pass a pause, the mouse, and a key only when no
/// click completed.
void runScreen(const ModalScreen& modal);

/// True for the Done button and the keys that leave the training, preferences and help screens.
bool leavesScreen(const ScreenEvent& event);

}  // namespace gloomdeck
