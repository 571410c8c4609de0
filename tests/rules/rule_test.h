// What the tests of the rules share: a tile met with fed rolls, and looks at the board.
#pragma once

#include <vector>

#include "rules/encounter.h"
#include "tests/support/script.h"

namespace gloomdeck {

using Inventory = std::array<std::int32_t, 10>;

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

    static bool advanced() { return column(3).drawn == 1 && board(3, 0) == enc::Door; }

    static int countOf(enc::Code code) {
        int found = 0;
        for (int i = 0; i < columnCount * rowCount; ++i)
            found += board(i % columnCount, i / columnCount) == code ? 1 : 0;
        return found;
    }

    // The newest message and the one before it.
    static std::string messagesShown() { return newestMessage() + "|" + messageBar.lines[1]; }
};

}  // namespace gloomdeck
