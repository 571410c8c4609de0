#include "shell/widgets/ui_state.h"

namespace gloomdeck {

UiState ui;
std::int32_t pressedWidget = notPressed;
std::int32_t clickedButton = -1;

}  // namespace gloomdeck
