#include "shell/hit_test.h"

#include "platform/button_face.h"
#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/palette.h"
#include "rules/stats_column.h"
#include "shell/describe.h"
#include "shell/play_pieces.h"
#include "shell/tile_set.h"
#include "shell/ui_state.h"

namespace gloomdeck {

namespace {

constexpr int pressAlpha = 128;
constexpr int hoverAlpha = 64;
constexpr int aimAlpha = 88;

bool isInside(const Button& b, int px, int py) {
    return px >= b.x && py >= b.y && px < b.x + b.width && py < b.y + b.height;
}

bool isInPressedCell(const Button& b, int px, int py) {
    const int x = b.pressCol * b.cellWidth + b.x;
    const int y = b.pressRow * b.cellHeight + b.y;
    return px >= x && px < x + b.cellWidth && py >= y && py < y + b.cellHeight;
}

Point cornerOf(const Button& b, int col, int row) {
    return {b.x + b.cellWidth * col, b.y + b.cellHeight * row};
}

void drawPressed(const Button& b, Point corner) {
    if (b.kind == WidgetKind::tileGrid) return putTile(tile::glow, corner, putBlended(pressAlpha));
    redrawButtonInside({.box = {corner.x, corner.y, corner.x + b.cellWidth, corner.y + b.cellHeight},
                        .face = colour::pressedFace,
                        .outline = colour::edge,
                        .ink = colour::pressedCaption,
                        .caption = b.caption,
                        .captionPlace = captionPlace(b)});
}

void restoreHoverCell(const Button& b) {
    if (b.gridId == grid::board)
        putImage(cornerOf(b, b.hoverCol, b.hoverRow).x, cornerOf(b, b.hoverCol, b.hoverRow).y, cellBackup,
                 putCopy);
    else
        drawStatsCell(b.hoverRow);
}

void highlightBoardCell(const Button& b) {
    const Point corner = cornerOf(b, b.hoverCol, b.hoverRow);
    getImage(screen(), corner.x, corner.y, corner.x + tile::size - 1, corner.y + tile::size - 1, cellBackup);
    const bool aiming = ui.targetMode != target::none;
    putTile(tile::glow, corner, putBlended(aiming ? aimAlpha : hoverAlpha));
    if (aiming) putTile(modeTile(), corner, putTransparent);
    describeBoardCell(b.hoverCol, b.hoverRow);
}

void highlightStatsCell(const Button& b) {
    putTile(tile::glow, cornerOf(b, b.hoverCol, b.hoverRow), putBlended(hoverAlpha));
    describeItem(b.hoverRow);
}

void moveHover(Button& b, int col, int row) {
    if (b.hoverCol == col && b.hoverRow == row) return;
    if (b.hoverCol != -1) restoreHoverCell(b);
    b.hoverCol = col;
    b.hoverRow = row;
    if (b.gridId == grid::board)
        highlightBoardCell(b);
    else
        highlightStatsCell(b);
}

}  // namespace

int hitTest(Button& b, int px, int py, Phase phase) {
    if (b.hidden) return 0;
    if (phase == Phase::release) return isInPressedCell(b, px, py) ? 1 : 0;
    if (!isInside(b, px, py)) return 0;
    const int col = (px - b.x) / b.cellWidth;
    const int row = (py - b.y) / b.cellHeight;
    if (phase == Phase::press || b.kind == WidgetKind::plain)
        drawPressed(b, cornerOf(b, col, row));
    else
        moveHover(b, col, row);
    if (phase == Phase::press) {
        b.pressCol = col;
        b.pressRow = row;
    }
    return 1;
}

void leaveHover(Button& gridWidget) {
    if (gridWidget.hoverCol == -1) return;
    restoreHoverCell(gridWidget);
    gridWidget.hoverCol = -1;
    clearInfoArea();
}

}  // namespace gloomdeck
