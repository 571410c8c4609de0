#include "shell/board_view.h"

#include <string>

#include "content/locations.h"
#include "platform/draw.h"
#include "platform/palette.h"
#include "platform/rounding.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/dice.h"
#include "shell/places.h"
#include "shell/screen_lock.h"
#include "shell/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int longestName = 20;
constexpr int nameTop = 56;
constexpr int nameStep = 10;

const Location& locationOf(int col) { return locationRow(column(col).location); }

// Draws the cells from the top; the answer is the row of the eye that hides what lies below it, or -1.
int drawCells(int col) {
    int eyeRow = none;
    for (int row = 0; row < rowCount; ++row) {
        const Point at = boardGrid.corner(col, row);
        putTile(locationOf(col).backgroundTile, at, putCopy);
        if (eyeRow != none) continue;
        putTile(encounterType(cell(col, row)).tile, at, putTransparent);
        if (IsPastEnd(col, row)) putTile(tile::cover, at, putTransparent);
        if (cell(col, row) == enc::HypnoEye && !isActive(magicSight)) eyeRow = row;
    }
    return eyeRow;
}

void drawBeam(int col, int eyeRow) {
    const Point corner = boardGrid.corner(col, eyeRow);
    const int x1 = corner.x + tile::size / 2;
    const int y1 = corner.y + tile::size / 2;
    const int n = Roll(30);
    const int x2 = roundedRatio(2 * (x1 + n) - 31, 2);
    for (const int dx : {-1, 0, 1}) drawLine(x1 + dx, y1, x2 + dx, boardGrid.area().y2, colour::brown);
}

void drawCounter(int col) {
    const int x = boardGrid.corner(col, 0).x;
    fillBox(x, place::counterTop, x + tile::size - 1, place::counterBottom, colour::panel);
    drawText(x, place::counterTop, column(col).finished ? "--" : std::to_string(tilesLeft(col)));
}

void drawOutlinedText(int x, int y, std::string_view text) {
    for (const Point d : {Point{-1, -1}, Point{-1, 1}, Point{1, 1}, Point{1, -1}})
        drawText(x + d.x, y + d.y, text, colour::black);
    drawText(x, y, text);
}

void drawNameDown(int col) {
    const std::string_view name = locationOf(col).name.substr(0, longestName);
    const int x = boardGrid.corner(col, 0).x + tile::size / 2 - 4;
    for (std::size_t i = 0; i < name.size(); ++i)
        drawOutlinedText(x, nameTop + nameStep * static_cast<int>(i), name.substr(i, 1));
}

}  // namespace

void drawBoard() {
    const HeldScreen held;
    for (int col = 0; col < columnCount; ++col) drawColumn(col);
    const Rect& frame = place::boardFrame;
    drawBox(frame.x1, frame.y1, frame.x2, frame.y2, colour::white);
}

void drawColumn(int col) {
    const HeldScreen held;
    const int eyeRow = drawCells(col);
    if (eyeRow != none) drawBeam(col, eyeRow);
    drawCounter(col);
    if (column(col).finished) drawNameDown(col);
}

}  // namespace gloomdeck
