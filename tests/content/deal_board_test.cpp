#include "content/deal_board.h"

#include <map>

#include "content/locations.h"
#include "content/scenarios.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr int cellar = 0, ruins = 1, portal = 2, hideout = 5, crags = 8;

void shuffle(std::initializer_list<int> draws) {
    for (const int draw : draws) rolls({{7, draw}});
}

void deal(int times, int roll) {
    for (int i = 0; i < times; ++i) rolls({{100, roll}});
}

// How many of the hundred rolls bring each code into a column of that location.
std::map<int, int> dealtBy(int location) {
    std::map<int, int> dealt;
    for (int roll = 1; roll <= 100; ++roll) {
        column(0).location = location;
        rolls({{100, roll}});
        ++dealt[DrawTile(0)];
    }
    return dealt;
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

TEST_F(DealTest, AlikeColumnsAreShuffledToo) {
    shuffle({7, 6, 5, 4, 3, 2, 1});
    deal(49, 1);
    buildScenarioBoard(0);
    EXPECT_EQ(board(6, 6), enc::Gold);
}

TEST_F(DealTest, AScenarioOutOfRangeDealsTheFirstAndKeepsItsNumber) {
    for (const int scenario : {-1, 7, 2147483647}) {
        seedRolls(1);
        buildScenarioBoard(scenario);
        EXPECT_EQ(game.scenario, scenario);
        for (int col = 0; col < columnCount; ++col)
            EXPECT_EQ(locationRow(column(col).location).name, "Treasury");
    }
    rolls({});
}

TEST_F(DealTest, RoundedSharesThatMissOrPassAHundredFallToEmptyOrToTheLastCodes) {
    auto fromRuins = dealtBy(ruins);
    EXPECT_EQ(fromRuins[enc::Empty], 5 + 3);
    EXPECT_EQ(fromRuins[enc::Skeleton], 21);
    EXPECT_EQ(fromRuins[enc::Flower], 5);
    auto fromPortal = dealtBy(portal);
    EXPECT_EQ(fromPortal[enc::Flower], 0);
    EXPECT_EQ(fromPortal[enc::HypnoEye], 1);
    EXPECT_EQ(fromPortal[enc::OozingFilth], 4);
    auto fromCellar = dealtBy(cellar);
    EXPECT_EQ(fromCellar[enc::MasterThief], 3);
    EXPECT_EQ(fromCellar[enc::Darkness], 19);
    auto fromCrags = dealtBy(crags);
    EXPECT_EQ(fromCrags[enc::Cave], 40);
    EXPECT_EQ(fromCrags[enc::Empty], 3);
    for (int location = 0; location < locationCount; ++location)
        EXPECT_EQ(dealtBy(location)[enc::TheEnd], 0) << location;
}

TEST_F(DealTest, TheEndComesInWithTheThirteenthStepOfATreasuryAndReachesTheBottomWithTheNineteenth) {
    seedRolls(5);
    InitColumn(0, 4);
    for (int step = 1; step <= 19; ++step) {
        ShiftColumn(0);
        for (int row = 0; row < rowCount; ++row) {
            const int position = step + rowCount - row;
            EXPECT_EQ(board(0, row) == enc::TheEnd, position == 20) << step << ", row " << row;
            EXPECT_EQ(IsPastEnd(0, row), position > 20);
            if (position > 20) {
                EXPECT_EQ(board(0, row), enc::Empty);
            }
        }
    }
    rolls({});
}

TEST_F(DealTest, TheListOrderHoldsEveryScenarioOnce) {
    EXPECT_EQ(scenarioRow(scenarioAtPosition(1)).name, "Thieves Den");
    EXPECT_EQ(scenarioRow(scenarioAtPosition(6)).name, "Dungeon");
    std::map<int, int> listed;
    for (int position = 0; position < scenarioTableSize; ++position) ++listed[scenarioAtPosition(position)];
    EXPECT_EQ(listed.size(), 7U);
    for (const int damaged : {-1, 7, -2147483647}) EXPECT_EQ(scenarioAtPosition(damaged), 0);
}

}  // namespace gloomdeck
