// The modes' names and prompts.
#include "shell/play/target_mode.h"

#include <array>
#include <string>

#include "rules/show.h"
#include "shell/play/play_pieces.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

namespace {

struct Mode {
    const char* name;
    const char* prompt;
};

constexpr std::array<Mode, 4> modes{{{"", ""},
                                     {"lightning", "Choose a column of the map"},
                                     {"bomb", "Place the bomb on the map"},
                                     {"hand", "Select a square on the map"}}};

const Mode& currentMode() { return modes[static_cast<std::size_t>(ui.targetMode)]; }

}  // namespace

void setTargetMode(int mode) {
    ui.targetMode = mode;
    drawModeIcon();
    if (mode != target::none) ShowMessage(std::string(currentMode().prompt) + ", <Esc> to cancel.", 0);
}

void cancelTargetMode() {
    if (ui.targetMode != target::none)
        ShowMessage(std::string("Canceled ") + currentMode().name + " mode.", 0);
    ui.targetMode = target::none;
    drawModeIcon();
}

}  // namespace gloomdeck
