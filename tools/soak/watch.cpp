#include "tools/soak/watch.h"

#include <array>
#include <string>

#include "rules/game_state.h"
#include "shell/widgets/ui_state.h"
#include "tests/support/invariants.h"

namespace gloomdeck::soak {

Tally tally;

namespace {

struct Seen {
    std::array<std::int32_t, columnCount> drawn{};
    std::int32_t turns = 0;
};

Seen last;

Seen look() {
    Seen now{.turns = game.turns};
    for (int col = 0; col < columnCount; ++col) now.drawn[static_cast<std::size_t>(col)] = column(col).drawn;
    return now;
}

bool hasFallen(const Seen& now) {
    for (std::size_t col = 0; col < now.drawn.size(); ++col)
        if (now.drawn[col] < last.drawn[col]) return true;
    return false;
}

// The autoplayer can have advanced one column before anybody looks.
bool isFreshBoard(const Seen& now) {
    int advanced = 0;
    for (const int drawn : now.drawn) advanced += drawn;
    return advanced <= 1;
}

void count(const Seen& now) {
    if (hasFallen(now)) {
        if (!isFreshBoard(now)) throw Broken("drawn has fallen within a board");
        ++tally.games;
    }
    if (now.turns > last.turns) tally.moves += now.turns - last.turns;
}

}  // namespace

void watchFromStart() {
    last = {};
    ++tally.starts;
}

void watch(bool atRest) {
    if (const std::string why = brokenInvariant(); !why.empty()) throw Broken(why);
    if (atRest && ui.lockDepth != 0)
        throw Broken("lockDepth is " + std::to_string(ui.lockDepth) + " at rest");
    const Seen now = look();
    count(now);
    last = now;
}

}  // namespace gloomdeck::soak
