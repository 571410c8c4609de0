// The fixed places of the play screen, in pixels of the 400 x 480 layout.
#pragma once

#include "platform/geometry.h"
#include "rules/tiles.h"

namespace gloomdeck {

/// A grid of 32 x 32 cells by its top left corner.
struct Grid {
    int x = 0;
    int y = 0;
    int columns = 0;
    int rows = 0;

    constexpr Point corner(int col, int row) const { return {x + tile::size * col, y + tile::size * row}; }
    constexpr Rect cell(int col, int row) const {
        const Point p = corner(col, row);
        return {p.x, p.y, p.x + tile::size - 1, p.y + tile::size - 1};
    }
    constexpr Rect area() const { return {x, y, x + tile::size * columns - 1, y + tile::size * rows - 1}; }
    constexpr int width() const { return tile::size * columns; }
    constexpr int height() const { return tile::size * rows; }
};

inline constexpr Grid boardGrid{8, 40, 7, 7};
inline constexpr Grid statsGrid{244, 40, 1, 9};

namespace place {

inline constexpr Point titleLine{8, 10};
inline constexpr Rect boardFrame{7, 39, 232, 264};
inline constexpr int counterTop = 28;  // the tiles left, above each column
inline constexpr int counterBottom = 37;
inline constexpr Rect statsArea{243, 39, 398, 328};
inline constexpr Rect modeIcon{200, 272, 232, 304};
inline constexpr Rect messageBar{8, 335, 400, 392};
inline constexpr Rect infoArea{7, 400, 400, 456};
inline constexpr Rect dayDisplay{308, 7, 371, 38};

// Beside each item's icon in the stats column: how many there are, and in some rows a skill.
inline constexpr int statsTextDrop = 12;  // texts stand that far below the row's top
inline constexpr int countTextLeft = 288;
inline constexpr int skillIconLeft = 328;
inline constexpr int skillTextLeft = 366;
constexpr Rect countBox(int row) { return {278, statsGrid.corner(0, row).y, 325, statsGrid.cell(0, row).y2}; }
constexpr Rect skillBox(int row) { return {326, statsGrid.corner(0, row).y, 397, statsGrid.cell(0, row).y2}; }

// The powers, side by side below the board: an icon, and beside it the turns that are left.
constexpr Rect powerBox(int power) {
    const int left = boardGrid.x + 2 * tile::size * power;
    return {left, 280, left + 2 * tile::size - 1, 280 + tile::size - 1};
}
constexpr Rect powerTurns(int power) {
    const Rect box = powerBox(power);
    return {box.x1 + 34, box.y1 + 12, box.x2 + 2, box.y1 + 22};
}

}  // namespace place

}  // namespace gloomdeck
