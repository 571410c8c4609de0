// The one game in progress.
#include "rules/game_state.h"

namespace gloomdeck {

GameState game{};

}  // namespace gloomdeck
