// The board's queries and its decks.
#include "rules/board.h"

#include <limits>
#include <vector>

#include "platform/random.h"
#include "rules/dice.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

enum LocationIndex { cellar = 0, ruins = 1, portal = 2, dungeon = 3, crags = 8 };

class BoardTest : public GameTest {};
class DeckTest : public GameTest {};
class EyeTest : public GameTest {};

}  // namespace

TEST_F(BoardTest, ARollSpansOneToNAndRollingNothingDrawsNothing) {
    EXPECT_EQ(Roll(0), 0);
    useRandomSource([] { return 0.0; });
    EXPECT_EQ(Roll(100), 1);
    useRandomSource([] { return 0x1.fffffffffffffp-1; });
    EXPECT_EQ(Roll(100), 100);
    EXPECT_EQ(Roll(7), 7);
}

TEST_F(BoardTest, OnlySevenFinishedColumnsFinishItAndOnlyTheLastStageWinsTheCampaign) {
    for (int col = 0; col < columnCount; ++col) {
        EXPECT_FALSE(AllColumnsFinished());
        column(col).finished = 1;
    }
    EXPECT_TRUE(AllColumnsFinished());
    EXPECT_EQ(game.campaignWon, 0U) << "a single scenario wins no campaign";
    game.campaign = 1;
    for (const int stage : {0, 2, 4, -1, std::numeric_limits<int>::max()}) {
        game.campaignStage = stage;
        EXPECT_TRUE(AllColumnsFinished());
        EXPECT_EQ(game.campaignWon, 0U) << stage;
    }
    game.campaignStage = 3;
    column(6).finished = 0;
    EXPECT_FALSE(AllColumnsFinished());
    EXPECT_EQ(game.campaignWon, 0U);
    column(6).finished = 1;
    EXPECT_TRUE(AllColumnsFinished());
    EXPECT_EQ(game.campaignWon, 1U);
}

TEST_F(BoardTest, TotalsLeaveOutTheReservedSlotsAndDoNotOverflow) {
    for (std::int32_t& n : game.inventory) n = std::numeric_limits<std::int32_t>::max();
    for (std::int32_t& n : game.skills) n = 10;
    EXPECT_EQ(TotalStats(), 9 * std::int64_t{std::numeric_limits<std::int32_t>::max()});
    EXPECT_EQ(TotalSkills(), 60);
    game.inventory = {0, 0, 0, 0, 0, 0, 0, 0, -3, 0};
    EXPECT_EQ(TotalStats(), -3);
}

TEST_F(DeckTest, ARollFindsTheFirstCodeWhoseSumReachesIt) {
    struct Deal {
        int location;
        int roll;
        enc::Code code;
    };
    const std::vector<Deal> deals{
        {dungeon, 1, enc::Gold},       {dungeon, 11, enc::Gold},     {dungeon, 12, enc::Door},
        {crags, 1, enc::Skeleton},     {dungeon, 100, enc::Empty},  // the percentages sum to 99
        {ruins, 97, enc::Flower},      {ruins, 98, enc::Empty},      {portal, 95, enc::MasterThief},
        {portal, 99, enc::Book},       {portal, 100, enc::HypnoEye}, {cellar, 97, enc::Meat},
        {cellar, 98, enc::MasterThief}};
    for (const Deal& deal : deals) {
        column(2).location = deal.location;
        rolls({{100, deal.roll}});
        EXPECT_EQ(DrawTile(2), deal.code) << deal.location << " " << deal.roll;
    }
}

TEST_F(DeckTest, ANewColumnIsDealtFromItsTopRow) {
    column(4).drawn = 55;
    column(4).finished = 1;
    rolls({{100, 1}, {100, 12}, {100, 23}, {100, 34}, {100, 45}, {100, 56}, {100, 61}});
    InitColumn(4, dungeon);
    const std::array<std::int32_t, 8> dealt{enc::Gold,     enc::Door,     enc::Skeleton, enc::Trap,
                                            enc::Darkness, enc::Backpack, enc::Scroll,   0};
    EXPECT_EQ(column(4).cells, dealt);
    EXPECT_EQ(column(4).drawn, 0);
    EXPECT_EQ(column(4).finished, 0U);
}

TEST_F(DeckTest, TheEndComesAtTheDecksLastPositionAndNothingAfterIt) {
    seedRolls(5);
    InitColumn(0, cellar);
    int endRow = none;
    for (int shift = 1; shift <= 19; ++shift) {
        ShiftColumn(0);
        if (shift >= 13) endRow = shift - 13;
        for (int row = 0; row < rowCount; ++row) {
            EXPECT_EQ(board(0, row) == enc::TheEnd, row == endRow) << shift;
            EXPECT_EQ(IsPastEnd(0, row), row < endRow) << shift;
            EXPECT_TRUE(row >= endRow || board(0, row) == enc::Empty);
        }
        EXPECT_EQ(tilesLeft(0), 20 - shift);
    }
    EXPECT_EQ(board(0, 6), enc::TheEnd);
}

TEST_F(DeckTest, PastItsWeightedDrawsADeckTakesNoRoll) {
    column(1).location = cellar;
    column(1).drawn = 13;
    EXPECT_EQ(DrawTile(1), enc::TheEnd);
    column(1).drawn = 14;
    EXPECT_EQ(DrawTile(1), enc::Empty);
    column(1).drawn = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(DrawTile(1), enc::Empty);
    EXPECT_TRUE(IsPastEnd(1, 6));
}

TEST_F(EyeTest, HidesItselfAndAllBelowItButNothingFromTheBottomRow) {
    board(3, 6) = enc::HypnoEye;
    EXPECT_EQ(FirstEyeRow(3), none);
    EXPECT_FALSE(IsHiddenByEye(3, 6));
    board(3, 5) = enc::HypnoEye;
    for (int row = 0; row < rowCount; ++row) EXPECT_EQ(IsHiddenByEye(3, row), row >= 5) << row;
    board(3, 2) = enc::HypnoEye;
    EXPECT_EQ(FirstEyeRow(3), 2);
    EXPECT_FALSE(IsHiddenByEye(2, 6));
    turnsLeft(magicSight) = 1;
    EXPECT_EQ(FirstEyeRow(3), none);
    EXPECT_FALSE(IsHiddenByEye(3, 6));
}

}  // namespace gloomdeck
