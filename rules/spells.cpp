// What each spell and tool rolls for, in the order in which it is seen.
#include "rules/spells.h"

#include <vector>

#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/clear_cell.h"
#include "rules/dice.h"
#include "rules/encounter.h"
#include "rules/hero.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

bool hasEye(int col) { return FirstEyeRow(col) != none; }

// The roll is drawn whatever the chance; what never works is not helped by skill.
bool spellHits(int baseChance, int boost) {
    const int r = Roll(100);
    return baseChance != never && r <= std::int64_t{baseChance} + boost;
}

void shineOnCell(int col, int row, int boost, bool eye) {
    if (!spellHits(encounterType(cell(col, row)).sunChance, boost)) return;
    flashCell(Flash::sun, col, row);
    ClearCell(col, row);
    redrawCell(col, row);
    if (eye) drawColumn(col);
}

// True when the hit cell was a Hypno Eye.
bool shieldStrikesCell(int col, int row, int boost, bool eye) {
    flashCell(Flash::shield, col, row);
    if (eye)
        drawColumn(col);
    else
        redrawCell(col, row);
    const int code = cell(col, row);
    if (!spellHits(encounterType(code).shieldChance, boost)) return false;
    flashCell(Flash::shieldHit, col, row);
    ClearCell(col, row);
    redrawCell(col, row);
    return true;
}

void shieldStrikesColumn(int col, int boost) {
    const bool eye = hasEye(col);
    bool redraw = false;
    for (int row = 0; row < rowCount; ++row) {
        if (IsPastEnd(col, row)) continue;
        const bool wasEye = cell(col, row) == enc::HypnoEye;
        if (shieldStrikesCell(col, row, boost, eye)) redraw = redraw || eye || wasEye;
    }
    if (redraw) drawColumn(col);
}

struct Bolt {
    int col;
    int boost;
    bool eye;
    std::vector<int> scorched;  // rows that get their scorch again at the end
};

void boltStrikesCell(Bolt& bolt, int row) {
    const int col = bolt.col;
    if (IsPastEnd(col, row) || column(col).finished) return;
    if (!spellHits(encounterType(cell(col, row)).lightningChance, bolt.boost)) return;
    ClearCell(col, row);
    redrawCell(col, row);
    const bool isEmpty = cell(col, row) == enc::Empty;
    if (isEmpty || bolt.eye) showScorch(col, row);
    if (isEmpty && !bolt.eye) bolt.scorched.push_back(row);
}

int blastChance(bool sameColumn, bool sameRow) { return (sameColumn ? 75 : 50) + (sameRow ? 25 : 0); }

// True when the blast destroyed what was there.
bool blastCell(int col, int row, int chance) {
    const int r = Roll(100);
    if (r > chance || IsEmptyOrEnd(cell(col, row))) return false;
    showBlastHit(col, row);
    cell(col, row) = enc::Empty;
    showScorch(col, row);
    return true;
}

void blastColumn(int col, int centreCol, int centreRow) {
    const bool eye = hasEye(col);
    bool hit = false;
    for (int row = centreRow - 1; row <= centreRow + 1; ++row)
        if (InBounds(col, row))
            hit = blastCell(col, row, blastChance(col == centreCol, row == centreRow)) || hit;
    if (hit && eye) drawColumn(col);
}

}  // namespace

void CastSun() {
    showSunlight();
    drawBoard();
    const int boost = level(sunBoost);
    for (int col = 0; col < columnCount; ++col) {
        if (column(col).finished) continue;
        const bool eye = hasEye(col);
        for (int row = 0; row < rowCount; ++row) shineOnCell(col, row, boost, eye);
    }
    AddItem(suns, -1);
}

void CastShield() {
    const int boost = level(shieldBoost);
    for (int col = 0; col < columnCount; ++col)
        if (!column(col).finished) shieldStrikesColumn(col, boost);
    AddItem(shields, -1);
}

void CastLightning(int redrawFirst, int col) {
    if (redrawFirst == 1) drawColumn(col);
    Bolt bolt{.col = col, .boost = level(lightningBoost), .eye = hasEye(col), .scorched = {}};
    startBolt(col);
    for (int row = bottomRow; row >= 0; --row) {
        boltStrikesCell(bolt, row);
        showBoltStep(col, row);
        if (cell(col, row) == enc::TheEnd) break;
    }
    endBolt();
    drawColumn(col);
    for (const int row : bolt.scorched) showScorch(col, row);
    AddItem(lightningBolts, -1);
}

void DropBomb(int redrawFirst, int spend, int col, int row) {
    if (redrawFirst == 1) drawColumn(col);
    showBlast(col, row);
    drawBoard();
    for (int c = col - 1; c <= col + 1; ++c)
        if (InBounds(c, row)) blastColumn(c, col, row);
    if (spend == 1) AddItem(bombs, -1);
}

int UseHand(int col, int row) {
    const int code = cell(col, row);
    const int eyeRow = FirstEyeRow(col);
    if (IsEmptyOrEnd(code) || IsPastEnd(col, row) || !Encounter(col, row, 1)) return 0;
    if (cell(col, row) == enc::Empty) showShrinking(code, col, row);
    if (count(hands) >= 1) AddItem(hands, -1);
    redrawCell(col, row);
    if (eyeRow != none && eyeRow < row) drawColumn(col);
    return 1;
}

}  // namespace gloomdeck
