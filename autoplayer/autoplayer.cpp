// Its moves: the column that is chosen, the weapon before it, the sweep where nothing else is left.
#include "autoplayer/autoplayer.h"

#include <optional>

#include "autoplayer/assess.h"
#include "autoplayer/autoplayer_table.h"
#include "platform/geometry.h"
#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "rules/board.h"
#include "rules/board_turn.h"
#include "rules/catalogue.h"
#include "rules/encounter.h"
#include "rules/show.h"
#include "rules/spells.h"

namespace gloomdeck {

namespace {

// Board places: x is the column, y the row.
using Target = std::optional<Point>;

bool mayMove() { return (prefs.switches & switchesWith(&SwitchType::allowsMoves)) != 0; }

std::int64_t lightningHope(int code) {
    const int chance = encounterType(code).lightningChance;
    return chance == never ? never : std::int64_t{chance} + level(lightningBoost);
}

// True when a lightning bolt or a bomb was spent on the cell.
bool UseWeapon(Point at) {
    const int code = cell(at.x, at.y);
    if (!switchIsOn(Switch::spellsSkills)) return false;
    if (count(lightningBolts) >= 1 && lightningHope(code) >= 1) {
        CastLightning(0, at.x);
        return true;
    }
    if (count(bombs) < 1 || IsEmptyOrEnd(code)) return false;
    DropBomb(0, 1, at.x, at.y);
    return true;
}

// One pass's findings.
struct Move {
    bool found = false;
    Target target;  // the tile to meet; none when a weapon was the move or the sweep has met it already
};

Move chooseMove(const Assessment& assessment) {
    const int col = chooseColumn(assessment);
    if (col == none) return {};
    const Point target{col, bottomRow};
    const bool grievous = assessment.at(col, bottomRow).category == category::grief;
    if (grievous && UseWeapon(target)) return {.found = true, .target = {}};
    return {.found = true, .target = target};
}

// What an eye hides is met unseen; in an open column only a weapon counts.
bool sweepColumn(int col, int eyeRow) {
    if (eyeRow == none) return UseWeapon({col, bottomRow});
    return UseWeapon({col, eyeRow}) || Encounter(col, bottomRow, 0) == 1;
}

bool sweepGrief(const EyeRows& eyeRows) {
    for (int col = 0; col < columnCount; ++col)
        if (!column(col).finished && sweepColumn(col, eyeRows[static_cast<std::size_t>(col)])) return true;
    return false;
}

Move findMove() {
    const bool boardDone = AllColumnsFinished();
    const EyeRows eyeRows = eyeRowsNow();
    Move move;
    if (!boardDone) move = chooseMove(assessBoard(eyeRows));
    if (!move.found && switchIsOn(Switch::grief)) move.found = sweepGrief(eyeRows);
    return move;
}

}  // namespace

void RunAutoplayer() {
    if (!mayMove()) return;
    for (bool done = false; !done;) {
        const Move move = findMove();
        if (!move.found) return;
        done = CancelRequested();
        if (move.target) {
            FlashCell(move.target->x, move.target->y);
            Encounter(move.target->x, move.target->y, 0);
        }
        BoardTurn();
    }
}

}  // namespace gloomdeck
