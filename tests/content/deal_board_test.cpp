#include "content/deal_board.h"

#include <array>

#include "content/locations.h"
#include "content/scenarios.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr int ruins = 1, portal = 2, hideout = 5;

void shuffle(std::initializer_list<int> draws) {
    for (const int draw : draws) rolls({{7, draw}});
}

void deal(int times, int roll) {
    for (int i = 0; i < times; ++i) rolls({{100, roll}});
}

}  // namespace

using DealTest = GameTest;

TEST_F(DealTest, AllShuffleDrawsComeBeforeTheColumnsWhichAreDealtInTheScenariosOrder) {
    constexpr int ruinsScenario = 2;
    prefs.scenarioOver = 1;
    for (int col = 0; col < columnCount; ++col) column(col).finished = 1;
    column(4).drawn = 33;
    shuffle({2, 2, 3, 2, 1, 4, 4, 5, 6, 7});  // the places taken already are drawn again
    rolls({{100, 1}, {100, 6}, {100, 27}, {100, 32}, {100, 37}, {100, 42}, {100, 58}});
    deal(7, 97);
    deal(7, 83);
    deal(28, 98);
    buildScenarioBoard(ruinsScenario);
    EXPECT_EQ(game.scenario, ruinsScenario);
    const std::array<int, columnCount> locations{ruins, hideout, ruins, ruins, portal, ruins, ruins};
    for (int col = 0; col < columnCount; ++col) {
        EXPECT_EQ(column(col).location, locations[static_cast<std::size_t>(col)]) << col;
        EXPECT_EQ(column(col).drawn, 0);
        EXPECT_EQ(column(col).finished, 0);
    }
    // The first location goes to the third column, the second to the first, the third to the second.
    const std::array<int, rowCount> fromTheTop{enc::Gold,   enc::Skeleton, enc::Trap, enc::Backpack,
                                               enc::Scroll, enc::Ghost,    enc::Empty};
    for (int row = 0; row < rowCount; ++row) {
        EXPECT_EQ(board(2, row), fromTheTop[static_cast<std::size_t>(row)]) << row;
        EXPECT_EQ(board(0, row), enc::Flower);
        EXPECT_EQ(board(1, row), enc::MasterThief);
    }
    EXPECT_EQ(prefs.scenarioOver, 0);
}

TEST_F(DealTest, AScenarioOutOfRangeDealsTheFirstAndKeepsItsNumber) {
    EXPECT_EQ(scenarioRow(scenarioAtPosition(6)).name, "Dungeon");
    for (const int damaged : {-1, 7, 2147483647}) {
        seedRolls(1);
        buildScenarioBoard(damaged);
        EXPECT_EQ(game.scenario, damaged);
        EXPECT_EQ(locationRow(column(0).location).name, "Treasury");
        EXPECT_EQ(scenarioAtPosition(damaged), 0);
    }
    rolls({});
}

}  // namespace gloomdeck
