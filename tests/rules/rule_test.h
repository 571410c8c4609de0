// What the tests of the rules share: a tile met with fed rolls, and looks at the board.
#pragma once

#include <vector>

#include "platform/palette.h"
#include "rules/encounter.h"
#include "shell/places.h"
#include "shell/tiles.h"
#include "tests/support/script.h"

namespace gloomdeck {

using Inventory = std::array<std::int32_t, 10>;
using Powers = std::array<std::int32_t, 4>;

inline constexpr int normalSpeed = 2;
inline constexpr FedRoll doorDealt{100, 12};  // in a Dungeon column
inline constexpr FedRoll noToughness{100, 100};

class RuleTest : public GameTest {
  public:
    // Meets that tile in a column that has not advanced yet; every roll must be drawn.
    static int meet(enc::Code code, const std::vector<FedRoll>& drawn, Point at = {3, 6}) {
        column(at.x).drawn = 0;
        board(at.x, at.y) = code;
        rolls(drawn);
        const int result = Encounter(at.x, at.y, 0);
        EXPECT_EQ(leftoverRolls(), 0) << encounterType(code).name;
        return result;
    }

    static bool advanced(int col = 3) { return column(col).drawn == 1 && board(col, 0) == enc::Door; }

    static void fillBoard(enc::Code code) {
        for (int i = 0; i < columnCount * rowCount; ++i) board(i % columnCount, i / columnCount) = code;
    }

    static int countOf(enc::Code code) {
        int found = 0;
        for (int i = 0; i < columnCount * rowCount; ++i)
            found += board(i % columnCount, i / columnCount) == code ? 1 : 0;
        return found;
    }

    // The newest message and the one before it.
    static std::string messagesShown() { return newestMessage() + "|" + messageBar.lines[1]; }

    // By a pixel that no beam reaches from an eye far above.
    static bool shows(Point cell, int tileNumber) {
        const Point at = boardGrid.corner(cell.x, cell.y);
        return pixelAt(at.x + 3, at.y + 3) == flatColour(tileNumber);
    }

    // Where the beam of an eye that rolled the smallest (1) or the greatest (30) ends.
    static bool beamEnds(int col, int roll) {
        return pixelAt(boardGrid.corner(col, 0).x + roll, boardGrid.area().y2) == colour::brown;
    }

    static Colour countBox(int item) { return pixelAt(statsGrid.x + 34, statsGrid.corner(0, item).y); }
    static Colour skillBox(int row) { return pixelAt(397, statsGrid.corner(0, row).y); }
};

}  // namespace gloomdeck
