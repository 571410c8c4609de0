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

}  // namespace place

}  // namespace gloomdeck
