#include "rules/cell_view.h"

#include "content/locations.h"
#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/palette.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "shell/pacing.h"
#include "shell/places.h"
#include "shell/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int wipeSteps = tile::size - 1;
constexpr int vanishPause = 10;
constexpr int shrinkPause = 40;

void drawTerrain(int col, int row) {
    putTile(locationRow(column(col).location).backgroundTile, boardGrid.corner(col, row), putCopy);
}

Rect topRows(int col, int row, int height) {
    Rect r = boardGrid.cell(col, row);
    r.y2 = r.y1 + height - 1;
    return r;
}

}  // namespace

void drawTileInCell(int tileNumber, int col, int row) {
    drawTerrain(col, row);
    putTile(tileNumber, boardGrid.corner(col, row), putTransparent);
}

void drawCellTile(int col, int row) { drawTileInCell(encounterType(cell(col, row)).tile, col, row); }

void redrawCell(int col, int row) {
    if (!IsHiddenByEye(col, row)) drawCellTile(col, row);
}

void overlayTile(int tileNumber, int col, int row, int alpha) {
    putTile(tileNumber, boardGrid.corner(col, row), alpha == 0 ? putTransparent : putBlended(alpha));
}

void revealWipe(int col, int row, int d) {
    for (int h = 1; h <= wipeSteps; ++h) {
        const ClipTo clip{topRows(col, row, h)};
        drawCellTile(col, row);
        Delay(d);
    }
}

void vanishWipe(int col, int row) {
    const Rect r = boardGrid.cell(col, row);
    for (int i = 0; i < wipeSteps; ++i) {
        const ClipTo clip{topRows(col, row, i + 1)};
        for (const int y : {r.y1 + i, r.y1 + i + 1}) drawLine(r.x1, y, r.x2, y, colour::white);
        Delay(vanishPause);
        drawTerrain(col, row);
    }
}

void flashTile(int tileNumber, int col, int row, int d, int alpha) {
    overlayTile(tileNumber, col, row, alpha);
    Delay(d);
}

void blinkCell(int overlay, int col, int row, int times, int d) {
    for (int i = 1; i <= times; ++i) {
        drawCellTile(col, row);
        overlayTile(overlay, col, row);
        Delay(d);
        drawTileInCell(tile::empty, col, row);
        if (i < times) Delay(d);
    }
}

void shrinkTile(int tileNumber, int col, int row) {
    const Rect r = boardGrid.cell(col, row);
    for (int i = 0; i <= tile::size / 2; ++i) {
        const Rect inner = spanning(r.x1 + i, r.y1 + i, r.x2 - i, r.y2 - i);
        drawTerrain(col, row);
        const ClipTo clip{inner};
        putTile(tileNumber, r.x1, r.y1, putTransparent);
        drawBox(inner.x1, inner.y1, inner.x2, inner.y2, colour::white);
        Delay(shrinkPause);
    }
}

}  // namespace gloomdeck
