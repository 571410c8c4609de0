// Whose press it is, and whether a hold counts at all.
#include "shell/widgets/press.h"

#include "platform/input.h"

namespace gloomdeck {

std::int32_t pressedWidget = notPressed;
std::int32_t clickedButton = -1;

namespace {

bool ignored = false;

}  // namespace

void restartPress() {
    pressedWidget = notPressed;
    clickedButton = -1;
    ignored = buttonIsHeld();
}

bool holdIsIgnored(bool pointerIsOutside) {
    ignored = buttonIsHeld() && (ignored || pointerIsOutside);
    return ignored;
}

}  // namespace gloomdeck
