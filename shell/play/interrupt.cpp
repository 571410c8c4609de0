// How the player interrupts the autoplayer.
#include <string>

#include "platform/input.h"
#include "rules/show.h"
#include "shell/widgets/press.h"

namespace gloomdeck {

namespace {

bool isCancelKey(const std::string& key) {
    return key == keycode::space || key == keycode::escape || key == keycode::enter;
}

}  // namespace

bool CancelRequested() {
    const std::string key = readKey();
    if (isCancelKey(key) || keptCloseRequest(key)) return true;
    const bool held = leftIsHeld(getMouse());
    if (held) restartPress();
    return held;
}

}  // namespace gloomdeck
