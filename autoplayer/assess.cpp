// What each cell is worth to the hero as he stands, and the look-ahead over a column.
#include "autoplayer/assess.h"

#include <algorithm>

#include "autoplayer/autoplayer_table.h"
#include "platform/geometry.h"
#include "platform/rounding.h"
#include "prefs/switches.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/monsters.h"

namespace gloomdeck {

namespace {

constexpr int hiddenValue = -100;

// A cell under assessment: its table row, where it stands, and what comes out.
struct Subject {
    int col;
    int row;
    int code;
    const AutoplayerRow& values;
    CellAssessment a;

    bool atBottom() const { return row == bottomRow; }
};

int monsterRowOf(const Subject& s) { return encounterType(s.code).monster; }

int thresholdOf(const Subject& s) { return monsterType(monsterRowOf(s)).healthThreshold; }

bool survives(const Subject& s) { return count(health) > ExpectedDamage(monsterRowOf(s)); }

// What a hit is reckoned at before anything reduces it: three times its dice, seven times its bonus.
std::int64_t fearedDamage(int monsterRow) {
    const MonsterType& type = monsterType(monsterRow);
    const std::int64_t dice = std::int64_t{type.dice[0]} + type.dice[1] + type.dice[2];
    return 3 * dice + std::int64_t{7} * type.bonus;
}

void makeHard(Subject& s) {
    s.a.category = category::obstacle;
    s.a.value = s.values.hardValue;
}

// Darkness and Caves: light enough, or few torches.
void assessDark(Subject& s, int plenty, int needed) {
    if (isActive(magicSight)) {
        s.a.value = s.values.poweredValue;
    } else if (count(torches) >= plenty) {
        s.a.value = s.values.easyValue;
    } else {
        makeHard(s);
        if (count(torches) < needed) s.a.allowed = 0;
    }
}

void assessCave(Subject& s) { assessDark(s, 10, 2); }

void assessDarkness(Subject& s) { assessDark(s, 8, 1); }

void assessBackpack(Subject& s) {
    const bool locksAreEasy = count(keys) >= 8 || level(lockpicking) >= 2;
    if (locksAreEasy && count(torches) >= 8) s.a.value = s.values.easyValue;
}

void assessLockedChest(Subject& s) {
    const bool canOpen = count(keys) >= 1 || level(lockpicking) >= 1;
    if (count(keys) >= 8) {
        s.a.value = s.values.baseValue;
    } else if (level(lockpicking) >= 10 || count(keys) >= 2) {
        s.a.category = category::fairlyEasy;
        s.a.value = s.values.easyValue;
    } else {
        s.a.category = category::obstacle;
        s.a.value = canOpen ? s.values.hardValue : s.values.worstValue;
    }
    if (count(keys) == 0 && level(lockpicking) == 0) s.a.allowed = 0;
}

void assessFlower(Subject& s) {
    if (!isActive(magicSight)) return;
    s.a.category = category::obstacle;
    s.a.value = s.values.easyValue;
}

void assessLock(Subject& s, int easySkill, int easyKeys, int needed) {
    if (level(lockpicking) >= easySkill || count(keys) >= easyKeys) {
        s.a.value = s.values.easyValue;
    } else if (count(keys) >= needed || level(lockpicking) >= needed) {
        makeHard(s);
    } else {
        s.a = {.value = s.values.worstValue, .category = category::obstacle, .allowed = 0};
    }
}

void assessDoor(Subject& s) { assessLock(s, 20, 8, 1); }

void assessDoubleDoor(Subject& s) { assessLock(s, 25, 10, 2); }

void assessTrap(Subject& s) {
    if (count(health) > ReduceDamage(fearedDamage(monsterRowOf(s))))
        s.a.value = s.values.easyValue;
    else
        makeHard(s);
}

void assessFighter(Subject& s) {
    if (survives(s)) {
        s.a.value = s.values.easyValue;
        return;
    }
    makeHard(s);
    if (count(health) > thresholdOf(s)) return;
    if (s.atBottom()) s.a.value = s.values.worstValue;
    s.a.allowed = 0;
}

// A Ghost that cannot flee is fought like any monster.
void assessTrappedGhost(Subject& s) {
    const bool stunned = isActive(stasis);
    if (survives(s)) {
        s.a.category = category::fairlyEasy;
        s.a.value = stunned ? s.values.poweredValue : s.values.easyValue;
    } else {
        s.a.category = category::obstacle;
        s.a.value = count(health) > thresholdOf(s) && stunned ? s.values.easyValue : s.values.hardValue;
    }
}

void assessGhost(Subject& s) {
    const int trapped = TrapState(s.col, s.row);
    if (trapped == 1 || isActive(stasis)) {
        assessTrappedGhost(s);
    } else {
        s.a.category = category::grief;
        s.a.value = s.values.worstValue;
    }
    if (count(health) > thresholdOf(s)) return;
    s.a.category = category::grief;
    if (trapped != 0 || isActive(stasis)) s.a.allowed = 0;
}

void assessThief(Subject& s) {
    if (isActive(stasis) && s.atBottom()) {
        s.a.value = s.values.poweredValue;
    } else {
        s.a.category = isActive(stasis) ? category::fairlyEasy : category::grief;
        s.a.value = s.values.worstValue;
    }
    if (!isActive(stasis) && TotalStats() <= 0) s.a.allowed = 0;
}

// Filth and Demons, held by stasis in the bottom row.
void assessStunnedMover(Subject& s) {
    if (survives(s)) {
        s.a.value = s.values.poweredValue;
    } else if (count(health) > thresholdOf(s)) {
        makeHard(s);
    } else {
        s.a.value = s.values.worstValue;
        s.a.category = category::grief;
    }
}

void assessFreeMover(Subject& s) {
    s.a.category = isActive(stasis) ? category::obstacle : category::grief;
    s.a.value = s.atBottom() ? s.values.worstValue : s.values.hardValue;
    if (count(health) > thresholdOf(s)) return;
    if (s.atBottom()) s.a.value = s.values.worstValue - 2;
    s.a.category = category::grief;
}

void assessMover(Subject& s) {
    if (isActive(stasis) && s.atBottom())
        assessStunnedMover(s);
    else
        assessFreeMover(s);
}

void assessFilth(Subject& s) {
    assessMover(s);
    if (count(health) <= thresholdOf(s)) s.a.allowed = 0;
}

void assessDemon(Subject& s) {
    assessMover(s);
    if (isActive(stasis) || (count(health) <= thresholdOf(s) && NoGhostTarget())) s.a.allowed = 0;
}

void applyRule(Subject& s) {
    switch (s.code) {
        case enc::Cave: return assessCave(s);
        case enc::Darkness: return assessDarkness(s);
        case enc::Backpack: return assessBackpack(s);
        case enc::LockedChest: return assessLockedChest(s);
        case enc::Flower: return assessFlower(s);
        case enc::Door: return assessDoor(s);
        case enc::DoubleDoor: return assessDoubleDoor(s);
        case enc::Trap: return assessTrap(s);
        case enc::Skeleton:
        case enc::SkeletonKing:
        case enc::HypnoEye: return assessFighter(s);
        case enc::Ghost: return assessGhost(s);
        case enc::Thief:
        case enc::MasterThief: return assessThief(s);
        case enc::OozingFilth: return assessFilth(s);
        case enc::Demon: return assessDemon(s);
        default: return;  // the table's values stand
    }
}

CellAssessment assessCell(int col, int row, int eyeRow) {
    if (column(col).finished || IsPastEnd(col, row)) return {.value = 0, .category = category::unavailable};
    if (eyeRow != none && row > eyeRow) return {.value = hiddenValue, .category = category::unavailable};
    const AutoplayerRow& values = autoplayerRow(cell(col, row));
    Subject s{.col = col,
              .row = row,
              .code = cell(col, row),
              .values = values,
              .a = {.value = values.baseValue, .category = values.category, .allowed = 1}};
    applyRule(s);
    return s.a;
}

bool noPowerIsActive() { return !isActive(stasis) && !isActive(magicSight) && !isActive(deflection); }

// Values fade towards 1 or -1 with the distance from the bottom; 0 stays 0.
int faded(int value, int distance) {
    if (value > 0) return std::max(value - distance, 1);
    return value < 0 ? std::min(value + distance, -1) : 0;
}

enum class Neighbour { blocked, hidden, open };

Neighbour neighbourAt(int col, int row) {
    if (InBounds(col, row) && IsHiddenByEye(col, row)) return Neighbour::hidden;
    return ghostIsLetIn(col, row) ? Neighbour::open : Neighbour::blocked;  // past the end counts as open
}

}  // namespace

EyeRows eyeRowsNow() {
    EyeRows rows{};
    for (int col = 0; col < columnCount; ++col) rows[static_cast<std::size_t>(col)] = FirstEyeRow(col);
    return rows;
}

Assessment assessBoard(const EyeRows& eyeRows) {
    Assessment assessment;
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < rowCount; ++row)
            assessment.at(col, row) = assessCell(col, row, eyeRows[static_cast<std::size_t>(col)]);
    return assessment;
}

bool CategoryEnabled(int categoryNumber) {
    switch (categoryNumber) {
        case category::goodStuff:
            return switchIsOn(Switch::goodStuff) && (switchIsOn(Switch::fairlyEasy) || noPowerIsActive());
        case category::fairlyEasy: return switchIsOn(Switch::fairlyEasy);
        case category::obstacle: return switchIsOn(Switch::obstacles);
        case category::spells: return switchIsOn(Switch::spellsSkills);
        case category::grief: return switchIsOn(Switch::grief);
        default: return false;
    }
}

int ColumnScore(const Assessment& assessment, int col) {
    const int bottom = assessment.at(col, bottomRow).value;
    int total = 7 * bottom;
    if (autoplayerRow(cell(col, bottomRow)).bottomOnly == 1) return total;
    int chain = bottom;
    for (int row = bottomRow - 1; row >= 0; --row) {
        const int distance = bottomRow - 1 - row;
        const int value = assessment.at(col, row).value;
        int x = faded(value, distance);
        if (chain >= 0) {
            chain = x >= 0 ? chain + value : -1;
            if (chain >= 0 && distance < 2) x *= 2;
        }
        total += x;
    }
    return bottom >= 0 ? std::max(total, 1) : std::min(total, -1);
}

int chooseColumn(const Assessment& assessment) {
    int best = none;
    int bestScore = -1000;
    for (int col = 0; col < columnCount; ++col) {
        const CellAssessment& bottom = assessment.at(col, bottomRow);
        if (!CategoryEnabled(bottom.category) || bottom.allowed != 1) continue;
        const int score = ColumnScore(assessment, col);
        if (score <= bestScore) continue;
        best = col;
        bestScore = score;
    }
    return best;
}

int ReduceDamage(std::int64_t n) {
    if (isActive(deflection)) n = roundedQuotient(n, 3);
    return static_cast<int>(std::max<std::int64_t>(roundedQuotient(10 * n - level(toughness), 10), 0));
}

int ExpectedDamage(int monsterRow) { return ReduceDamage(ReduceDamage(fearedDamage(monsterRow))); }

int TrapState(int col, int row) {
    int blocked = 0;
    int hidden = 0;
    for (const Point p :
         {Point{col - 1, row}, Point{col + 1, row}, Point{col, row - 1}, Point{col, row + 1}}) {
        const Neighbour neighbour = neighbourAt(p.x, p.y);
        if (neighbour == Neighbour::blocked) ++blocked;
        if (neighbour == Neighbour::hidden) ++hidden;
    }
    if (blocked == 4) return 1;
    return blocked + hidden == 4 ? 3 : 0;
}

bool NoGhostTarget() {
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < rowCount; ++row)
            if (ghostMayGo(col, row)) return false;
    return true;
}

}  // namespace gloomdeck
