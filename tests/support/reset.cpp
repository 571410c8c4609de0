#include "tests/support/reset.h"

#include "platform/clock.h"
#include "platform/frame.h"
#include "platform/host_script.h"
#include "platform/input.h"
#include "prefs/prefs.h"
#include "prefs/saved_data.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "shell/lifecycle.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/messages.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/press.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

void forgetProgram() {
    script::reset();
    resetInput();
    resetClock();
    resetFrame();
    resetCatalogue();
    resetLifecycle();
    resetSavedData();
    game = {};
    prefs = {};
    ui = {};
    restartPress();
    useWidgets(nullptr);
    clearMessages();
    layOutWidgets();
}

}  // namespace gloomdeck
