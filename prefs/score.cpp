#include "prefs/score.h"

#include <algorithm>
#include <limits>
#include <string>

#include "platform/rounding.h"
#include "rules/board.h"
#include "shell/widgets/panels.h"

namespace gloomdeck {

namespace {

constexpr int labelTop = -13;
constexpr int labelHeight = 12;

const char* standingTag() {
    if (game.scoreStanding == none) return "";
    return game.scoreStanding == 0 ? " - Best!" : " - Above avg!";
}

}  // namespace

std::int32_t ComputeScore() {
    const std::int64_t owned = std::max<std::int64_t>(TotalStats(), 0);
    if (game.turns <= 0) return 0;
    const std::int64_t score = roundedQuotient(1000 * owned, game.turns);
    return static_cast<std::int32_t>(std::min<std::int64_t>(score, std::numeric_limits<std::int32_t>::max()));
}

void ShowScoreLine() {
    drawBoardLabel("Score: " + std::to_string(ComputeScore()) + standingTag(), labelTop, labelHeight);
}

}  // namespace gloomdeck
