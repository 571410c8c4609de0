// What the hero owns, by the turns that it took.
#include "prefs/score.h"

#include <algorithm>
#include <limits>

#include "platform/rounding.h"
#include "rules/board.h"

namespace gloomdeck {

std::int32_t ComputeScore() {
    const std::int64_t owned = std::max<std::int64_t>(TotalStats(), 0);
    if (game.turns <= 0) return 0;
    const std::int64_t score = roundedQuotient(1000 * owned, game.turns);
    return static_cast<std::int32_t>(std::min<std::int64_t>(score, std::numeric_limits<std::int32_t>::max()));
}

}  // namespace gloomdeck
