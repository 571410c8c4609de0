// Tiles on their terrain, and what happens to one: flashes, wipes, scorches.
#include "shell/play/cell_view.h"

#include "content/locations.h"
#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/palette.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/show.h"
#include "shell/widgets/pacing.h"
#include "shell/widgets/places.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int wipeSteps = tile::size - 1;
constexpr int arrivalPause = 30;
constexpr int vanishPause = 10;
constexpr int shrinkPause = 40;
constexpr int choiceFlashes = 4;
constexpr int choicePause = 50;

// How a flash looks: a tile over the cell, whole where alpha is 0, for a while.
struct FlashLook {
    int tileNumber;
    int alpha;
    int pause;
};

FlashLook lookOf(Flash flash) {
    switch (flash) {
        case Flash::sun: return {tile::glow, 200, 600};
        case Flash::shield: return {tile::shield, 0, 40};
        case Flash::shieldHit: return {tile::shieldHit, 0, 600};
        case Flash::spreading: return {tile::spreading, 0, 200};
    }
    return {};
}

void drawTerrain(int col, int row) {
    putTile(locationRow(column(col).location).backgroundTile, boardGrid.corner(col, row), putCopy);
}

Rect topRows(int col, int row, int height) {
    Rect r = boardGrid.cell(col, row);
    r.y2 = r.y1 + height - 1;
    return r;
}

void flashFrame(const Rect& r, Colour colour) {
    drawBox(r.x1, r.y1, r.x2, r.y2, colour);
    Delay(choicePause);
}

}  // namespace

void drawTileInCell(int tileNumber, int col, int row) {
    drawTerrain(col, row);
    putTile(tileNumber, boardGrid.corner(col, row), putTransparent);
}

void drawCellTile(int col, int row) { drawTileInCell(encounterType(cell(col, row)).tile, col, row); }

void overlayTile(int tileNumber, int col, int row, int alpha) {
    putTile(tileNumber, boardGrid.corner(col, row), alpha == 0 ? putTransparent : putBlended(alpha));
}

void redrawCell(int col, int row) {
    if (!IsHiddenByEye(col, row)) drawCellTile(col, row);
}

void flashCell(Flash flash, int col, int row) {
    const FlashLook look = lookOf(flash);
    overlayTile(look.tileNumber, col, row, look.alpha);
    Delay(look.pause);
}

// A wipe from the top.
void showArrival(int col, int row) {
    for (int h = 1; h <= wipeSteps; ++h) {
        const ClipTo clip{topRows(col, row, h)};
        drawCellTile(col, row);
        Delay(arrivalPause);
    }
}

// A white edge goes down and leaves bare terrain.
void showVanishing(int col, int row) {
    const Rect r = boardGrid.cell(col, row);
    for (int i = 0; i < wipeSteps; ++i) {
        const ClipTo clip{topRows(col, row, i + 1)};
        for (const int y : {r.y1 + i, r.y1 + i + 1}) drawLine(r.x1, y, r.x2, y, colour::white);
        Delay(vanishPause);
        drawTerrain(col, row);
    }
}

void showScorch(int col, int row) { drawTileInCell(tile::scorch, col, row); }

void showShrinking(int code, int col, int row) {
    const Rect r = boardGrid.cell(col, row);
    for (int i = 0; i <= tile::size / 2; ++i) {
        const Rect inner = spanning(r.x1 + i, r.y1 + i, r.x2 - i, r.y2 - i);
        drawTerrain(col, row);
        const ClipTo clip{inner};
        putTile(encounterType(code).tile, r.x1, r.y1, putTransparent);
        drawBox(inner.x1, inner.y1, inner.x2, inner.y2, colour::white);
        Delay(shrinkPause);
    }
}

void FlashCell(int col, int row) {
    const int eyeRow = FirstEyeRow(col);
    if (eyeRow != none && row > eyeRow) return;
    const Rect r = boardGrid.cell(col, row);
    for (int i = 0; i < choiceFlashes; ++i) {
        flashFrame(r, colour::yellow);
        flashFrame(r, colour::red);
    }
    drawCellTile(col, row);
}

}  // namespace gloomdeck
