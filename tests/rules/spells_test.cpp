#include "rules/spells.h"

#include <functional>
#include <string>
#include <vector>

#include "platform/draw.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr int treasure = enc::Chest;
constexpr int normalSpeed = 2;
const Colour bareTerrain = flatColour(tile::cellar);  // how a hidden cell looks
const Colour emptyCell = flatColour(tile::empty);

void misses(int times) {
    for (int i = 0; i < times; ++i) rolls({{100, 100}});
}

void beam() { rolls({{30, 15}}); }

// A bolt through a column that is not finished: its start, then a roll and a step for each of the rows.
void missingBoltRows(int rows) {
    for (int i = 0; i < rows; ++i) rolls({{100, 100}, {26, 1}});
}

// The cell's pixel beside the middle that no bolt, no ring and no corner touches.
Colour cellPixel(int col, int row) {
    const Point corner = boardGrid.corner(col, row);
    return pixelAt(corner.x + 1, corner.y + 16);
}

}  // namespace

class SpellsTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        game.inventory = {0, 0, 0, 9, 9, 9, 9, 9, 20};
    }

    static void onlyColumnIs(int col) {
        for (int other = 0; other < columnCount; ++other) column(other).finished = other != col;
    }

    // Casts over a column of Empty cells with one code in its bottom cell, on which that roll falls.
    static int castOnto(int item, int code, int boost, int roll) {
        makeEmptyBoard();
        onlyColumnIs(3);
        board(3, bottomRow) = code;
        game.skills.fill(0);
        level(item == suns ? sunBoost : item == shields ? shieldBoost : lightningBoost) = boost;
        if (item == lightningBolts) {
            rolls({{26, 1}, {100, roll}, {26, 1}});
            missingBoltRows(6);
            CastLightning(0, 3);
        } else {
            misses(6);
            rolls({{100, roll}});
            item == suns ? CastSun() : CastShield();
        }
        return board(3, bottomRow);
    }

    static long timeOf(const std::function<void()>& action) {
        prefs.GameSpeed = normalSpeed;
        const long before = script::sleptMilliseconds();
        action();
        return script::sleptMilliseconds() - before;
    }
};

TEST_F(SpellsTest, TheSunRollsForEveryCellOfUnfinishedColumnsFromTheTopLeft) {
    column(2).finished = 1;
    board(2, 6) = enc::Darkness;
    board(0, 0) = enc::Darkness;
    board(1, 3) = enc::Gold;
    board(6, 6) = enc::Skeleton;
    rolls({{100, 100}});
    misses(6);
    for (int row = 0; row < rowCount; ++row) rolls({{100, 1}});  // what never works draws its roll too
    misses(27);
    rolls({{100, 16}});
    CastSun();
    EXPECT_EQ(board(0, 0), enc::Empty);
    EXPECT_EQ(board(6, 6), enc::Empty);
    EXPECT_EQ(board(1, 3), enc::Gold);
    EXPECT_EQ(board(2, 6), enc::Darkness);
    EXPECT_EQ(count(suns), 8);
    EXPECT_EQ(column(6).drawn, 0) << "a cleared bottom cell does not move its column";
}

TEST_F(SpellsTest, AHitNeedsARollUpToTheChanceOfTheTileAndTheSkill) {
    struct Case {
        int item, code, boost, lastHit;  // lastHit 0: never
    };
    for (const Case& c :
         {Case{suns, enc::Skeleton, 0, 16}, Case{suns, enc::Skeleton, 10, 26}, Case{suns, enc::Ghost, 0, 33},
          Case{suns, enc::Door, 95, 0}, Case{suns, enc::TheEnd, 95, 0}, Case{shields, enc::Door, 0, 0},
          Case{shields, enc::Door, 1, 1}, Case{shields, enc::Thief, 5, 30},
          Case{shields, enc::Darkness, 95, 0}, Case{lightningBolts, enc::Trap, 90, 92},
          Case{lightningBolts, enc::DoubleDoor, 0, 0}, Case{lightningBolts, enc::Cave, 95, 0},
          Case{lightningBolts, enc::Darkness, 0, 50}}) {
        SCOPED_TRACE(testing::Message() << "item " << c.item << ", code " << c.code << ", boost " << c.boost);
        if (c.lastHit > 0) {
            EXPECT_EQ(castOnto(c.item, c.code, c.boost, c.lastHit), enc::Empty);
        }
        EXPECT_EQ(castOnto(c.item, c.code, c.boost, c.lastHit + 1), c.code);
    }
}

TEST_F(SpellsTest, SpellsLeaveWhatAMonsterOrACaveLeavesAndGiveNoReward) {
    for (const int item : {suns, shields, lightningBolts})
        EXPECT_EQ(castOnto(item, enc::SkeletonKing, 0, 4), enc::Gold) << "item " << item;
    EXPECT_EQ(castOnto(shields, enc::Skeleton, 0, 50), enc::Empty);
    EXPECT_EQ(count(gold), 0);
    EXPECT_EQ(count(health), 20);
    makeEmptyBoard();
    onlyColumnIs(3);
    board(3, 2) = enc::Cave;
    misses(2);
    rolls({{100, 20}, {15, 14}});  // the contents come right after the hit
    misses(4);
    CastSun();
    EXPECT_EQ(board(3, 2), enc::LockedChest);
}

TEST_F(SpellsTest, OnlyTheSunRollsForCellsPastTheEnd) {
    onlyColumnIs(3);
    column(3).drawn = 57;  // The End stands in row 4
    board(3, 4) = enc::TheEnd;
    board(3, 6) = enc::Skeleton;
    misses(7);
    CastSun();
    rolls({{100, 1}, {100, 100}, {100, 50}});
    level(shieldBoost) = 95;
    CastShield();
    EXPECT_EQ(board(3, 4), enc::TheEnd);
    EXPECT_EQ(board(3, 6), enc::Empty);
}

TEST_F(SpellsTest, TheBoltScorchesWhatItEmptiesAndStopsAtTheEnd) {
    column(3).drawn = 57;
    board(3, 4) = enc::TheEnd;
    board(3, 5) = enc::SkeletonKing;
    board(3, 6) = enc::Skeleton;
    rolls({{26, 1}, {100, 50}, {26, 1}, {100, 4}, {26, 1}, {100, 1}, {26, 1}});
    CastLightning(0, 3);
    EXPECT_EQ(board(3, 4), enc::TheEnd);
    EXPECT_EQ(cellPixel(3, 6), flatColour(tile::scorch));
    EXPECT_EQ(cellPixel(3, 5), flatColour(tile::gold)) << "what is left is not scorched";
    EXPECT_EQ(count(lightningBolts), 8);
    board(3, 6) = enc::TheEnd;
    column(3).finished = 1;
    rolls({{26, 1}, {26, 1}});  // a finished column is lit up, not struck
    CastLightning(0, 3);
}

TEST_F(SpellsTest, TheBoltIsFiveYellowPixelsWideFromStepToStep) {
    prefs.GameSpeed = normalSpeed;
    rolls({{26, 1}, {100, 100}, {26, 1}, {100, 100}, {26, 26}});
    missingBoltRows(5);
    std::vector<std::string> row5Top;  // at each pause
    std::string row6Middle;
    script::feedWhenPausing([&](InputQueue&) {
        row5Top.emplace_back();
        row6Middle.clear();
        for (int x = 104; x < 136; ++x) {
            row5Top.back() += pixelAt(x, 200) == colour::yellow ? '#' : '.';
            row6Middle += pixelAt(x, 248) == colour::yellow ? '#' : '.';
        }
        return true;
    });
    CastLightning(0, 3);
    EXPECT_EQ(row6Middle, "..#####.........................");
    EXPECT_EQ(row5Top.front(), "................................");
    EXPECT_EQ(row5Top.back(), "...........................#####");
}

TEST_F(SpellsTest, UnderAnEyeTheBoltsScorchIsCoveredWhenTheColumnIsDrawnAgain) {
    board(3, 0) = enc::HypnoEye;
    board(3, 6) = enc::Skeleton;
    beam();
    rolls({{26, 1}, {100, 50}, {26, 1}});
    missingBoltRows(6);
    beam();
    CastLightning(1, 3);
    EXPECT_EQ(board(3, 6), enc::Empty);
    EXPECT_EQ(cellPixel(3, 6), bareTerrain);
}

TEST_F(SpellsTest, AnEyeMakesTheShieldDrawItsColumnForEveryCellEvenAfterTheEyeIsGone) {
    onlyColumnIs(3);
    board(3, 2) = enc::HypnoEye;
    board(3, 6) = treasure;
    for (int row = 0; row < 2; ++row) {
        beam();
        misses(1);
    }
    beam();
    rolls({{100, 16}});
    misses(4);  // no eye, no beam
    CastShield();
    EXPECT_EQ(board(3, 2), enc::Empty);
    EXPECT_EQ(cellPixel(3, 6), flatColour(tile::chest));
}

TEST_F(SpellsTest, WhatAnEyeHidesStaysHiddenThroughSunAndShield) {
    onlyColumnIs(3);
    board(3, 0) = enc::HypnoEye;
    board(3, 4) = enc::Darkness;
    board(3, 5) = enc::SkeletonKing;
    beam();  // the board after the flash
    misses(4);
    rolls({{100, 100}, {30, 1}, {100, 4}, {30, 1}});  // the Gold that the King leaves is not revealed either
    misses(1);
    CastSun();
    for (const int row : {4, 5}) EXPECT_EQ(cellPixel(3, row), bareTerrain) << row;
    turnsLeft(magicSight) = 1;  // nothing is hidden, so no beam is drawn
    misses(14);
    CastSun();
    CastShield();
    EXPECT_EQ(cellPixel(3, 5), flatColour(tile::gold));
}

TEST_F(SpellsTest, TheBlastTakesTheCentreSurelyTheSidesAtThreeQuartersTheCornersAtHalf) {
    const auto fill = [] {
        for (int col = 2; col <= 4; ++col)
            for (int row = 2; row <= 4; ++row) board(col, row) = treasure;
    };
    fill();
    for (const int chance : {50, 75, 50, 75, 100, 75, 50, 75, 50}) rolls({{100, chance}});
    DropBomb(0, 1, 3, 3);
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < rowCount; ++row) EXPECT_EQ(board(col, row), enc::Empty);
    EXPECT_EQ(cellPixel(2, 2), flatColour(tile::scorch));
    fill();
    for (const int chance : {51, 76, 51, 76, 100, 76, 51, 76, 51}) rolls({{100, chance}});
    DropBomb(0, 0, 3, 3);
    for (int col = 2; col <= 4; ++col)
        for (int row = 2; row <= 4; ++row)
            EXPECT_EQ(board(col, row), col == 3 && row == 3 ? enc::Empty : treasure);
    EXPECT_EQ(count(bombs), 8) << "the second one was free";
}

TEST_F(SpellsTest, InACornerTheBlastRollsForFourCellsAndSparesTheEndAndWhatIsEmpty) {
    column(6).drawn = 53;
    board(6, 0) = enc::TheEnd;
    board(5, 0) = enc::SkeletonKing;
    board(5, 1) = treasure;
    rolls({{100, 75}, {100, 51}, {100, 1}, {100, 1}});
    DropBomb(0, 1, 6, 0);
    EXPECT_EQ(board(6, 0), enc::TheEnd);
    EXPECT_EQ(board(5, 0), enc::Empty) << "a King leaves nothing";
    EXPECT_EQ(board(5, 1), treasure);
    EXPECT_EQ(count(gold), 0);
}

TEST_F(SpellsTest, TheBlastRedrawsAColumnWithAnEyeOnlyWhenItHitSomethingThere) {
    board(2, 0) = board(4, 0) = enc::HypnoEye;
    board(2, 5) = board(4, 5) = treasure;
    beam();  // the pressed column has none, the board two
    beam();
    rolls({{100, 1}, {100, 75}, {100, 1}});
    beam();
    misses(3);
    rolls({{100, 1}, {100, 76}, {100, 1}});
    DropBomb(1, 1, 3, 5);
    EXPECT_EQ(board(2, 5), enc::Empty);
    EXPECT_EQ(cellPixel(2, 5), bareTerrain) << "the scorch is hidden";
}

TEST_F(SpellsTest, TheBlastStaysOnTheBoard) {
    clearScreen();
    misses(4);
    DropBomb(0, 1, 0, 0);
    EXPECT_EQ(pixelAt(2, 56), colour::panel);
    EXPECT_EQ(pixelAt(7, 56), colour::white) << "drawing is no longer clipped";
}

TEST_F(SpellsTest, TheHandMeetsATileFromAfarAndTheColumnStays) {
    board(2, 1) = enc::Gold;
    board(2, 0) = treasure;
    rolls({{10, 7}});
    EXPECT_EQ(UseHand(2, 1), 1);
    EXPECT_EQ(count(gold), 7);
    EXPECT_EQ(board(2, 1), enc::Empty);
    EXPECT_EQ(board(2, 0), treasure);
    EXPECT_EQ(column(2).drawn, 0);
    EXPECT_EQ(count(hands), 8);
    board(2, 1) = enc::SkeletonKing;
    rolls({{6, 1}, {6, 1}, {6, 1}, {100, 50}});
    EXPECT_EQ(UseHand(2, 1), 1);
    EXPECT_EQ(board(2, 1), enc::Gold);
    EXPECT_EQ(count(health), 17);
}

TEST_F(SpellsTest, ARefusedHandSpendsNothing) {
    board(2, 1) = enc::LockedChest;
    rolls({{100, 1}});
    EXPECT_EQ(UseHand(2, 1), 0);
    EXPECT_EQ(newestMessage(), "1 Key needed.");
    EXPECT_EQ(board(2, 1), enc::LockedChest);
    column(3).drawn = 57;
    board(3, 4) = enc::TheEnd;
    board(3, 2) = enc::Gold;  // past the end
    for (const Point cell : {Point{2, 2}, Point{3, 4}, Point{3, 2}}) EXPECT_EQ(UseHand(cell.x, cell.y), 0);
    EXPECT_EQ(count(hands), 9);
}

TEST_F(SpellsTest, AThiefMetWithTheLastHandMayTakeIt) {
    game.inventory = {};
    count(hands) = 1;
    board(2, 1) = enc::Thief;
    rolls({{100, 50}, {9, hands + 1}});
    EXPECT_EQ(UseHand(2, 1), 1);
    EXPECT_EQ(count(hands), 0);
}

TEST_F(SpellsTest, TheHandMeetsWhatAnEyeHidesAndItStaysHidden) {
    board(2, 1) = enc::HypnoEye;
    board(2, 4) = enc::Fruit;
    rolls({{6, 3}});
    beam();
    beam();
    EXPECT_EQ(UseHand(2, 4), 1);
    EXPECT_EQ(count(health), 23);
    EXPECT_EQ(cellPixel(2, 4), bareTerrain);
    board(2, 4) = treasure;
    rolls({{6, 1}, {6, 1}, {100, 50}});  // the eye itself: nothing is hidden afterwards
    EXPECT_EQ(UseHand(2, 1), 1);
    EXPECT_EQ(cellPixel(2, 4), flatColour(tile::chest));
}

TEST_F(SpellsTest, TheMetTileShrinksInAWhiteFrame) {
    prefs.GameSpeed = normalSpeed;
    board(2, 1) = enc::Gold;
    const Point at = boardGrid.corner(2, 1);
    std::vector<int> insets;  // how far in the frame stands at each pause
    script::feedWhenPausing([&](InputQueue&) {
        int inset = 0;
        while (inset < 17 && pixelAt(at.x + inset, at.y + 15) != colour::white) ++inset;
        insets.push_back(inset);
        return true;
    });
    rolls({{10, 1}});
    UseHand(2, 1);
    // The last step is the same two by two pixels as the one before.
    EXPECT_EQ(insets, (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 15}));
    EXPECT_EQ(cellPixel(2, 1), emptyCell);
}

TEST_F(SpellsTest, AnimationsTakeTheirTimeAtTheNormalSpeed) {
    onlyColumnIs(3);
    misses(7);
    EXPECT_EQ(timeOf(CastSun), 1000);
    board(3, 6) = enc::Skeleton;
    misses(6);
    rolls({{100, 1}});
    EXPECT_EQ(timeOf(CastShield), 7 * 40 + 600);
    rolls({{26, 1}});
    missingBoltRows(7);
    EXPECT_EQ(timeOf([] { CastLightning(1, 3); }), 7 * 150 + 450);
    board(3, 6) = enc::Door;
    misses(4);
    rolls({{100, 1}, {100, 1}});
    EXPECT_EQ(timeOf([] { DropBomb(1, 1, 3, 6); }), 24 * 20 + 5 * 100);
}

}  // namespace gloomdeck
