// Opening a screen, its passes, and what leaves it.
#include "shell/widgets/screen.h"

#include <algorithm>
#include <array>

#include "platform/frame.h"
#include "platform/input.h"
#include "prefs/prefs.h"
#include "prefs/saved_data.h"
#include "shell/widgets/press.h"
#include "shell/widgets/screen_lock.h"

namespace gloomdeck {

namespace {

constexpr int passPause = 1;  // milliseconds

ScreenEvent pollScreen(double deadline) {
    markSafePoint();
    pausePolling(passPause, deadline);
    ScreenEvent event;
    event.click = handleMouse() != 0;
    if (event.click) {
        event.clicked = clickedButton;
        clickedButton = -1;
    } else {
        event.key = readKey();
    }
    return event;
}

}  // namespace

void enterScreen(const Screen& screen) {
    setWindowTitle(screen.title);
    prefs.currentScreen = screen.id;
    useWidgets(screen.widgets);
    restartPress();
}

void runScreen(const ModalScreen& modal) {
    enterScreen(modal.screen);
    {
        const HeldScreen held;
        modal.draw();
    }
    while (modal.handle(pollScreen(modal.wakeUp()))) {
    }
}

bool leavesScreen(const ScreenEvent& event) {
    using namespace keycode;
    constexpr std::array<std::string_view, 6> leaving{escape, close, "Q", "q", enter, space};
    return event.clicked == id::done || std::find(leaving.begin(), leaving.end(), event.key) != leaving.end();
}

}  // namespace gloomdeck
