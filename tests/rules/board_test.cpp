// The board's queries and its decks.
#include "rules/board.h"

#include <limits>

#include "platform/random.h"
#include "rules/dice.h"
#include "tests/support/rules_test.h"

namespace gloomdeck {

namespace {

constexpr int cellar = 0;

constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();

}  // namespace

using BoardTest = RulesTest;

TEST_F(BoardTest, ARollSpansOneToNAndRollingNothingDrawsNothing) {
    EXPECT_EQ(Roll(0), 0);
    useRandomSource([] { return 0.0; });
    EXPECT_EQ(Roll(100), 1);
    useRandomSource([] { return 0x1.fffffffffffffp-1; });
    EXPECT_EQ(Roll(100), 100);
}

TEST_F(BoardTest, OnlySevenFinishedColumnsFinishItAndOnlyTheLastStageWinsTheCampaign) {
    game.campaign = 1;
    game.campaignStage = 3;
    for (int col = 0; col < columnCount; ++col) {
        EXPECT_FALSE(AllColumnsFinished());
        column(col).finished = 1;
    }
    EXPECT_EQ(game.campaignWon, 0U);
    // clang-format off
    for (const auto& [campaign, stage, won] : {
        std::tuple{none, 3, 0U}, {none, -1, 0U}, {1, 2, 0U}, {1, 4, 0U}, {1, most, 0U}, {1, 3, 1U}}) {
        // clang-format on
        game.campaign = campaign;
        game.campaignStage = stage;
        EXPECT_TRUE(AllColumnsFinished());
        EXPECT_EQ(game.campaignWon, won) << stage;
    }
}

TEST_F(BoardTest, TotalsLeaveOutTheReservedSlotsAndDoNotOverflow) {
    game.inventory.fill(most);
    game.skills.fill(10);
    EXPECT_EQ(TotalStats(), 9 * std::int64_t{most});
    EXPECT_EQ(TotalSkills(), 60);
}

TEST_F(BoardTest, TheEndComesAtTheDecksLastPositionAndNothingAfterItAndNeitherTakesARoll) {
    seedRolls(5);
    InitColumn(0, cellar);
    for (int shift = 1; shift <= 12; ++shift) ShiftColumn(0);
    rolls(std::vector<FedRoll>{});
    for (int endRow = 0; endRow < rowCount; ++endRow) {
        ShiftColumn(0);
        for (int row = 0; row < rowCount; ++row) {
            EXPECT_EQ(board(0, row) == enc::TheEnd, row == endRow);
            EXPECT_EQ(IsPastEnd(0, row), row < endRow);
            EXPECT_TRUE(row >= endRow || board(0, row) == enc::Empty);
        }
        EXPECT_EQ(tilesLeft(0), 7 - endRow);
    }
    column(0).drawn = most;
    EXPECT_EQ(DrawTile(0), enc::Empty);
    EXPECT_TRUE(IsPastEnd(0, 6));
}

}  // namespace gloomdeck
