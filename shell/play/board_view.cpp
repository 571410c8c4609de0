// Drawing the board: columns with their terrain, what an eye hides, counters and names.

#include <string>

#include "content/locations.h"
#include "platform/draw.h"
#include "platform/font.h"
#include "platform/palette.h"
#include "platform/rounding.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/dice.h"
#include "rules/show.h"
#include "shell/widgets/places.h"
#include "shell/widgets/screen_lock.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int longestName = 20;
constexpr int nameTop = 56;
constexpr int nameStep = 10;
constexpr int beamSpread = 30;  // pixels that a beam's end may lie apart

const Location& locationOf(int col) { return locationRow(column(col).location); }

// Below the row of an eye there is bare terrain.
void drawCells(int col, int eyeRow) {
    for (int row = 0; row < rowCount; ++row) {
        const Point at = boardGrid.corner(col, row);
        putTile(locationOf(col).backgroundTile, at, putCopy);
        if (eyeRow != none && row > eyeRow) continue;
        putTile(encounterType(cell(col, row)).tile, at, putTransparent);
        if (IsPastEnd(col, row)) putTile(tile::cover, at, putTransparent);
    }
}

void drawBeam(int col, int eyeRow) {
    const Point corner = boardGrid.corner(col, eyeRow);
    const int x1 = corner.x + tile::size / 2;
    const int y1 = corner.y + tile::size / 2;
    const int n = Roll(beamSpread);
    const int x2 = roundedRatio(2 * (x1 + n) - (beamSpread + 1), 2);
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
    const int x = boardGrid.corner(col, 0).x + (tile::size - glyphSize) / 2;
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
    const int eyeRow = highestEye(col, bottomRow, Sight::counts);  // in the bottom row it has a beam too
    drawCells(col, eyeRow);
    if (eyeRow != none) drawBeam(col, eyeRow);
    drawCounter(col);
    if (column(col).finished) drawNameDown(col);
}

}  // namespace gloomdeck
