// The look-ahead over columns and the choice among them.
#include "tests/autoplayer/autoplayer_test.h"

namespace gloomdeck {

namespace {

/// A column by its values from the bottom up.
int scoreOf(const std::array<int, rowCount>& fromBottom) {
    Assessment assessment{};
    for (int row = 0; row < rowCount; ++row)
        assessment.at(0, row).value = fromBottom[static_cast<std::size_t>(bottomRow - row)];
    return ColumnScore(assessment, 0);
}

}  // namespace

using AutoplayerChoice = AutoplayerTest;

TEST_F(AutoplayerChoice, TheLookAheadFadesWithDistance) {
    EXPECT_EQ(scoreOf({6, 9, -9, 3, 3, 3, 3}), 56);
    EXPECT_EQ(scoreOf({-9, 6, 6, 6, 6, 6, 6}), -42);
    EXPECT_EQ(scoreOf({1, 20, 20, 20, 20, 20, 20}), 7 + 40 + 38 + 18 + 17 + 16 + 15);
    EXPECT_EQ(scoreOf({1, 2, 2, 2, 2, 2, 2}), 7 + 4 + 2 + 1 + 1 + 1 + 1) << "never faded below 1";
    EXPECT_EQ(scoreOf({9, -2, -2, -2, -2, -2, -2}), 63 - 2 - 1 - 1 - 1 - 1 - 1) << "nor above -1";
    EXPECT_EQ(scoreOf({9, 1, 0, 0, 0, 0, 0}), 63 + 2);
    EXPECT_EQ(scoreOf({0, 0, 5, 0, 0, 0, 0}), 8) << "zeros do not break the chain";
    EXPECT_EQ(scoreOf({9, -1, 6, 0, 0, 0, 0}), 63 - 1 + 5) << "what stands on a bad tile is not doubled";
}

TEST_F(AutoplayerChoice, TheBottomTileDecidesTheSign) {
    EXPECT_EQ(scoreOf({0, -9, -9, -9, -9, -9, -9}), 1);
    EXPECT_EQ(scoreOf({0, 0, 0, 0, 0, 0, 0}), 1);
    EXPECT_EQ(scoreOf({-1, 20, 20, 20, 20, 20, 20}), -1);
    board(0, 6) = enc::TheEnd;
    EXPECT_EQ(scoreOf({0, 20, 20, 20, 20, 20, 20}), 0) << "above The End nothing counts";
}

TEST_F(AutoplayerChoice, OfEqualColumnsTheLeftmostIsTaken) {
    allow({goodStuffBit});
    EXPECT_EQ(chooseColumn(assessNow()), 0);
    for (const int col : {2, 5}) board(col, 6) = enc::Gold;
    EXPECT_EQ(chooseColumn(assessNow()), 2);
    board(5, 0) = enc::Chest;
    EXPECT_EQ(chooseColumn(assessNow()), 5);
    allow({});
    EXPECT_EQ(chooseColumn(assessNow()), none);
}

TEST_F(AutoplayerChoice, AForbiddenTileHidesNoWorseOne) {
    allow({goodStuffBit, fairlyEasyBit, obstaclesBit});
    onlyColumns({1, 3, 5});
    for (const int col : {1, 3, 5}) fillColumn(col, enc::Trap);
    fillColumn(3, enc::Chest);
    board(3, 6) = enc::LockedChest;
    EXPECT_EQ(chooseColumn(assessNow()), 1) << "nothing opens the chest";
    count(keys) = 1;
    EXPECT_EQ(chooseColumn(assessNow()), 3);
}

TEST_F(AutoplayerChoice, TheEndStandsBetweenWhatIsGoodAndWhatIsBad) {
    allow({goodStuffBit, obstaclesBit});
    onlyColumns({1, 3, 5});
    for (const int col : {1, 5}) board(col, 6) = enc::Trap;
    board(3, 6) = enc::TheEnd;
    EXPECT_EQ(chooseColumn(assessNow()), 3);
    board(5, 6) = enc::Empty;
    for (int row = 0; row < bottomRow; ++row) board(5, row) = enc::Trap;
    EXPECT_EQ(chooseColumn(assessNow()), 5);
    board(5, 6) = enc::TheEnd;
    EXPECT_EQ(chooseColumn(assessNow()), 3);
}

TEST_F(AutoplayerChoice, NothingBelowAnEyeIsChosen) {
    setSwitches(switchCombinations - 1);
    onlyColumns({2, 4});
    fillColumn(2, enc::Chest);
    board(2, 3) = enc::HypnoEye;
    EXPECT_EQ(chooseColumn(assessNow()), 4);
    onlyColumns({2});
    EXPECT_EQ(chooseColumn(assessNow()), none);
    turnsLeft(magicSight) = 1;
    EXPECT_EQ(chooseColumn(assessNow()), 2);
}

}  // namespace gloomdeck
