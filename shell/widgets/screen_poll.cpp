#include "shell/widgets/screen_poll.h"

#include <algorithm>
#include <array>

#include "platform/input.h"
#include "prefs/saved_data.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

ScreenEvent pollScreen(double deadline) {
    markSafePoint();
    pausePolling(1, deadline);
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

bool leavesScreen(std::string_view key) {
    using namespace keycode;
    constexpr std::array<std::string_view, 6> leaving{escape, close, "Q", "q", enter, space};
    return std::find(leaving.begin(), leaving.end(), key) != leaving.end();
}

}  // namespace gloomdeck
