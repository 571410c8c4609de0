#include "autoplayer/autoplayer.h"

#include <optional>
#include <string>

#include "autoplayer/assess.h"
#include "autoplayer/autoplayer_table.h"
#include "platform/draw.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "prefs/prefs.h"
#include "rules/board.h"
#include "rules/board_turn.h"
#include "rules/catalogue.h"
#include "rules/cell_view.h"
#include "rules/encounter.h"
#include "rules/spells.h"
#include "shell/mouse.h"
#include "shell/pacing.h"
#include "shell/places.h"

namespace gloomdeck {

namespace {

constexpr int flashes = 4;
constexpr int flashPause = 50;

// Board places: x is the column, y the row.
using Target = std::optional<Point>;

bool anySwitchIsOn() {
    return prefs.goodStuff || prefs.fairlyEasy || prefs.obstacles || prefs.grief || prefs.spellsSkills;
}

std::int64_t lightningHope(int code) {
    const int chance = encounterType(code).lightningChance;
    return chance == never ? never : std::int64_t{chance} + level(lightningBoost);
}

// True when a lightning bolt or a bomb was spent on the cell.
bool UseWeapon(Point at) {
    const int code = cell(at.x, at.y);
    if (!prefs.spellsSkills) return false;
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
    if (!move.found && prefs.grief) move.found = sweepGrief(eyeRows);
    return move;
}

void drawFlash(const Rect& r, Colour colour) {
    drawBox(r.x1, r.y1, r.x2, r.y2, colour);
    Delay(flashPause);
}

void FlashCell(Point at) {
    const int eyeRow = FirstEyeRow(at.x);
    if (eyeRow != none && at.y > eyeRow) return;
    const Rect r = boardGrid.cell(at.x, at.y);
    for (int i = 0; i < flashes; ++i) {
        drawFlash(r, colour::yellow);
        drawFlash(r, colour::red);
    }
    drawCellTile(at.x, at.y);
}

bool isCancelKey(const std::string& key) {
    return key == keycode::space || key == keycode::escape || key == keycode::enter;
}

}  // namespace

bool CancelRequested() {
    const std::string key = readKey();
    if (isCancelKey(key) || keptCloseRequest(key)) return true;
    const bool held = leftIsHeld(getMouse());
    if (held) startScreenPress();
    return held;
}

void RunAutoplayer() {
    if (!anySwitchIsOn()) return;
    for (bool done = false; !done;) {
        const Move move = findMove();
        if (!move.found) return;
        done = CancelRequested();
        if (move.target) {
            FlashCell(*move.target);
            Encounter(move.target->x, move.target->y, 0);
        }
        BoardTurn();
    }
}

}  // namespace gloomdeck
