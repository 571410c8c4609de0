#include "content/deal_board.h"

#include "content/scenarios.h"
#include "tests/support/rules_test.h"

namespace gloomdeck {

namespace {

void draws(int sides, std::initializer_list<int> values, int times = 1) {
    for (int i = 0; i < times; ++i)
        for (const int value : values) rolls({{sides, value}});
}

}  // namespace

using DealTest = RulesTest;

TEST_F(DealTest, AllShuffleDrawsComeBeforeTheColumnsWhichAreDealtInTheScenariosOrder) {
    prefs.scenarioOver = 1;
    for (int col = 0; col < columnCount; ++col) column(col) = {8, 33, {}, 1, 0};
    draws(7, {2, 2, 3, 2, 1, 4, 4, 5, 6, 7});  // the places taken already are drawn again
    draws(100, {1, 6, 27, 32, 37, 42, 58});
    draws(100, {97}, 7);
    draws(100, {83}, 7);
    draws(100, {98}, 28);
    buildScenarioBoard(2);
    EXPECT_EQ(prefs.scenarioOver, 0);
    // Ruins, all but a portal and a hideout. The first goes to the third column, the second to the first.
    const std::array<int, columnCount> locations{1, 5, 1, 1, 2, 1, 1};
    for (int col = 0; col < columnCount; ++col) {
        EXPECT_EQ(column(col).location, locations[static_cast<std::size_t>(col)]) << col;
        EXPECT_EQ(column(col).drawn + static_cast<int>(column(col).finished), 0);
    }
    EXPECT_EQ(column(2).cells,
              (std::array<std::int32_t, 8>{enc::Gold, enc::Skeleton, enc::Trap, enc::Backpack, enc::Scroll,
                                           enc::Ghost, enc::Empty}));
    EXPECT_EQ(board(0, 0), enc::Flower);
    EXPECT_EQ(board(1, 0), enc::MasterThief);
}

TEST_F(DealTest, AScenarioOutOfRangeDealsTheFirstAndKeepsItsNumber) {
    EXPECT_EQ(scenarioRow(scenarioAtPosition(6)).name, "Dungeon");
    for (const int damaged : {-1, 7, 2147483647}) {
        seedRolls(1);
        buildScenarioBoard(damaged);
        EXPECT_EQ(game.scenario, damaged);
        EXPECT_EQ(column(0).location, scenarioRow(0).columnLocations[0]);
        EXPECT_EQ(scenarioAtPosition(damaged), 0);
    }
}

}  // namespace gloomdeck
