// Cells by floors of quotients, and the look of the one that is pressed.
#include "shell/widgets/hit_test.h"

#include "platform/button_face.h"
#include "platform/palette.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int pressAlpha = 128;

bool isInside(const Button& b, int px, int py) {
    return px >= b.x && py >= b.y && px < b.x + b.width && py < b.y + b.height;
}

bool isInPressedCell(const Button& b, int px, int py) {
    const Point corner = cellCorner(b, b.pressCol, b.pressRow);
    return px >= corner.x && px < corner.x + b.cellWidth && py >= corner.y && py < corner.y + b.cellHeight;
}

void drawPressed(const Button& b) {
    const Point corner = cellCorner(b, b.pressCol, b.pressRow);
    if (b.kind == WidgetKind::tileGrid) return putTile(tile::glow, corner, putBlended(pressAlpha));
    redrawButtonInside({.box = {corner.x, corner.y, corner.x + b.cellWidth, corner.y + b.cellHeight},
                        .face = colour::pressedFace,
                        .outline = colour::edge,
                        .ink = colour::pressedCaption,
                        .caption = b.caption,
                        .captionPlace = captionPlace(b)});
}

}  // namespace

Point cellUnder(const Button& b, int px, int py) {
    return {(px - b.x) / b.cellWidth, (py - b.y) / b.cellHeight};
}

Point cellCorner(const Button& b, int col, int row) {
    return {b.x + b.cellWidth * col, b.y + b.cellHeight * row};
}

int hitTest(Button& b, int px, int py, Phase phase) {
    if (b.hidden) return 0;
    if (phase == Phase::release) return isInPressedCell(b, px, py) ? 1 : 0;
    if (!isInside(b, px, py)) return 0;
    if (phase == Phase::hover) return 1;
    const Point at = cellUnder(b, px, py);
    b.pressCol = at.x;
    b.pressRow = at.y;
    drawPressed(b);
    return 1;
}

}  // namespace gloomdeck
