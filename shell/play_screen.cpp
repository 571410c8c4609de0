#include "shell/play_screen.h"

#include "autoplayer/autoplayer.h"
#include "content/game_flow.h"
#include "platform/frame.h"
#include "prefs/prefs.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

void enterPlayScreen() {
    ui.targetMode = target::none;
    setWindowTitle("Gloomdeck 1.2");
    restartPress();
    clickedButton = -1;
    widget(id::board).hoverCol = -1;
    widget(id::stats).hoverCol = -1;
    prefs.currentScreen = screen_id::play;
    openPlayScreen();
    RunAutoplayer();
}

}  // namespace gloomdeck
