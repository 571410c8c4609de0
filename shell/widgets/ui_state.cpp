// The one state of the screens.
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

UiState ui;

}  // namespace gloomdeck
