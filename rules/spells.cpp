#include "rules/spells.h"

#include <vector>

#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/palette.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/cell_view.h"
#include "rules/clear_cell.h"
#include "rules/dice.h"
#include "rules/encounter.h"
#include "rules/hero.h"
#include "shell/board_view.h"
#include "shell/pacing.h"
#include "shell/places.h"
#include "shell/screen_lock.h"
#include "shell/tiles.h"

namespace gloomdeck {

namespace {

// Milliseconds at the normal speed.
constexpr int sunPause = 1000;
constexpr int hitPause = 600;
constexpr int shieldPause = 40;
constexpr int boltStepPause = 150;
constexpr int boltEndPause = 450;
constexpr int blastPause = 20;
constexpr int blinkPause = 100;

constexpr int dazzleAlpha = 128;
constexpr int sunHitAlpha = 200;
constexpr int blastRings = 24;
constexpr int blinks = 3;

bool hasEye(int col) { return FirstEyeRow(col) != none; }

// The roll is drawn whatever the chance; what never works is not helped by skill.
bool spellHits(int baseChance, int boost) {
    const int r = Roll(100);
    return baseChance != never && r <= std::int64_t{baseChance} + boost;
}

void dazzle() {
    const HeldScreen held;
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < rowCount; ++row) overlayTile(tile::glow, col, row, dazzleAlpha);
}

void shineOnCell(int col, int row, int boost, bool eye) {
    if (!spellHits(encounterType(cell(col, row)).sunChance, boost)) return;
    flashTile(tile::glow, col, row, hitPause, sunHitAlpha);
    ClearCell(col, row);
    redrawCell(col, row);
    if (eye) drawColumn(col);
}

// True when the hit cell was a Hypno Eye.
bool shieldStrikesCell(int col, int row, int boost, bool eye) {
    flashTile(tile::shield, col, row, shieldPause);
    if (eye)
        drawColumn(col);
    else
        redrawCell(col, row);
    const int code = cell(col, row);
    if (!spellHits(encounterType(code).shieldChance, boost)) return false;
    flashTile(tile::shieldHit, col, row, hitPause);
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
    int x;
    std::vector<int> scorched;  // rows that get their scorch again at the end
};

int boltX(int col) { return boardGrid.corner(col, 0).x + Roll(26) + 3; }

void boltStrikesCell(Bolt& bolt, int row) {
    const int col = bolt.col;
    if (IsPastEnd(col, row) || column(col).finished) return;
    if (!spellHits(encounterType(cell(col, row)).lightningChance, bolt.boost)) return;
    ClearCell(col, row);
    redrawCell(col, row);
    const bool isEmpty = cell(col, row) == enc::Empty;
    if (isEmpty || bolt.eye) drawTileInCell(tile::scorch, col, row);
    if (isEmpty && !bolt.eye) bolt.scorched.push_back(row);
}

void drawBoltThrough(Bolt& bolt, int row) {
    const int top = boardGrid.corner(bolt.col, row).y;
    const int x = boltX(bolt.col);
    for (const int d : {0, -1, -2, 1, 2})
        drawLine(bolt.x + d, top + tile::size - 1, x + d, top, colour::yellow);
    bolt.x = x;
    Delay(boltStepPause);
}

void blastAt(int col, int row) {
    const Point corner = boardGrid.corner(col, row);
    const int x = corner.x + tile::size / 2;
    const int y = corner.y + tile::size / 2;
    const ClipTo clip{boardGrid.area()};
    for (int ring = 1; ring <= blastRings; ++ring) {
        drawCircle(x, y, 2 * ring, colour::yellow);
        Delay(blastPause);
        drawCircle(x, y, 2 * ring, colour::black);
    }
}

int blastChance(bool sameColumn, bool sameRow) { return (sameColumn ? 75 : 50) + (sameRow ? 25 : 0); }

// True when the blast destroyed what was there.
bool blastCell(int col, int row, int chance) {
    const int r = Roll(100);
    if (r > chance || IsEmptyOrEnd(cell(col, row))) return false;
    blinkCell(tile::bomb, col, row, blinks, blinkPause);
    cell(col, row) = enc::Empty;
    drawTileInCell(tile::scorch, col, row);
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
    dazzle();
    Delay(sunPause);
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
    Bolt bolt{
        .col = col, .boost = level(lightningBoost), .eye = hasEye(col), .x = boltX(col), .scorched = {}};
    for (int row = bottomRow; row >= 0; --row) {
        boltStrikesCell(bolt, row);
        drawBoltThrough(bolt, row);
        if (cell(col, row) == enc::TheEnd) break;
    }
    Delay(boltEndPause);
    drawColumn(col);
    for (const int row : bolt.scorched) drawTileInCell(tile::scorch, col, row);
    AddItem(lightningBolts, -1);
}

void DropBomb(int redrawFirst, int spend, int col, int row) {
    if (redrawFirst == 1) drawColumn(col);
    blastAt(col, row);
    drawBoard();
    for (int c = col - 1; c <= col + 1; ++c)
        if (InBounds(c, row)) blastColumn(c, col, row);
    if (spend == 1) AddItem(bombs, -1);
}

int UseHand(int col, int row) {
    const int code = cell(col, row);
    const int eyeRow = FirstEyeRow(col);
    if (IsEmptyOrEnd(code) || IsPastEnd(col, row) || !Encounter(col, row, 1)) return 0;
    if (cell(col, row) == enc::Empty) shrinkTile(encounterType(code).tile, col, row);
    if (count(hands) >= 1) AddItem(hands, -1);
    redrawCell(col, row);
    if (eyeRow != none && eyeRow < row) drawColumn(col);
    return 1;
}

}  // namespace gloomdeck
