#include "rules/spells.h"

#include "platform/palette.h"
#include "shell/places.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

const Colour bareTerrain = flatColour(tile::cellar);  // how a hidden cell looks

void chances(std::initializer_list<int> drawn) {
    for (const int roll : drawn) rolls({{100, roll}});
}

void beam() { rolls({{30, 15}}); }

// A bolt misses in so many rows.
void boltRises(int rows) {
    for (int i = 0; i < rows; ++i) rolls({{100, 100}, {26, 1}});
}

// Codes from the bottom row up.
void pile(int col, std::initializer_list<int> codes) {
    for (int row = bottomRow; const int code : codes) cell(col, row--) = code;
}

void onlyColumnIs(int col) {
    for (int other = 0; other < columnCount; ++other) column(other).finished = other != col;
}

// The cell's pixel beside the middle that no bolt, no ring and no corner touches.
Colour cellPixel(int col, int row) {
    const Point corner = boardGrid.corner(col, row);
    return pixelAt(corner.x + 1, corner.y + 16);
}

// Casts over a column of Empty cells with one code in its bottom cell, on which that roll falls.
int castOnto(int item, int code, int boost, int roll) {
    makeEmptyBoard();
    onlyColumnIs(3);
    pile(3, {code});
    game.skills = {0, 0, boost, boost, boost, 0};
    if (item == lightningBolts) {
        rolls({{26, 1}, {100, roll}, {26, 1}});
        boltRises(6);
        CastLightning(0, 3);
    } else {
        chances({100, 100, 100, 100, 100, 100, roll});
        item == suns ? CastSun() : CastShield();
    }
    return cell(3, bottomRow);
}

}  // namespace

using SpellsTest = GameTest;

TEST_F(SpellsTest, TheSunRollsForEveryCellOfUnfinishedColumnsFromTheTopLeft) {
    onlyColumnIs(6);
    column(0).finished = 0;
    board(0, 0) = enc::Darkness;
    board(0, 3) = enc::Cave;
    column(6).drawn = 57;  // The End stands in row 4
    pile(6, {enc::Skeleton, enc::Empty, enc::TheEnd});
    chances({100, 1, 1, 20});  // what never works draws its roll too
    rolls({{15, 14}});         // the cave's contents come right after the hit
    chances({100, 100, 100});
    chances({1, 1, 1, 1, 1, 1, 16});  // also for what lies past the end
    CastSun();
    EXPECT_EQ(board(0, 0), enc::Empty);
    EXPECT_EQ(board(0, 3), enc::LockedChest);
    EXPECT_EQ(board(6, 6), enc::Empty);
    EXPECT_EQ(column(6).drawn, 57) << "a cleared bottom cell does not move its column";
}

TEST_F(SpellsTest, AHitNeedsARollUpToTheChanceOfTheTileAndTheSkillAndOnlyTheSpellIsSpent) {
    struct Case {
        int item, code, boost, lastHit;  // lastHit 0: never
    };
    game.inventory = {0, 0, 0, 10, 10, 10, 0, 0, 20};
    for (const Case& c :
         {Case{suns, enc::Skeleton, 10, 26}, Case{suns, enc::Ghost, 0, 33}, Case{suns, enc::Door, 95, 0},
          Case{shields, enc::Thief, 5, 30}, Case{shields, enc::Door, 1, 1},
          Case{shields, enc::Darkness, 95, 0}, Case{lightningBolts, enc::Trap, 90, 92},
          Case{lightningBolts, enc::DoubleDoor, 0, 0}, Case{lightningBolts, enc::Cave, 95, 0}}) {
        SCOPED_TRACE(testing::Message() << "item " << c.item << ", code " << c.code << ", boost " << c.boost);
        EXPECT_EQ(castOnto(c.item, c.code, c.boost, c.lastHit + 1), c.code);
        EXPECT_TRUE(c.lastHit == 0 || castOnto(c.item, c.code, c.boost, c.lastHit) == enc::Empty);
    }
    for (const int item : {suns, shields, lightningBolts})
        EXPECT_EQ(castOnto(item, enc::SkeletonKing, 0, 4), enc::Gold) << "item " << item;
    EXPECT_EQ(game.inventory, (std::array<std::int32_t, 10>{0, 0, 0, 4, 5, 4, 0, 0, 20}));
}

TEST_F(SpellsTest, TheShieldStrikesUpToTheEndAndDrawsTheColumnOfAnEyeForEveryCell) {
    onlyColumnIs(3);
    column(3).drawn = 57;
    pile(3, {enc::Chest, enc::HypnoEye, enc::TheEnd});
    level(shieldBoost) = 95;
    beam();
    chances({1});
    beam();
    chances({100, 100});  // the eye is gone: no beam
    CastShield();
    EXPECT_EQ(board(3, 4), enc::TheEnd);
    EXPECT_EQ(cellPixel(3, 6), flatColour(tile::chest));
}

TEST_F(SpellsTest, TheBoltRisesToTheEndAndScorchesWhatItEmpties) {
    column(3).drawn = 57;
    pile(3, {enc::Skeleton, enc::SkeletonKing, enc::TheEnd});
    rolls({{26, 1}, {100, 50}, {26, 1}, {100, 4}, {26, 1}, {100, 1}, {26, 1}});
    CastLightning(0, 3);
    EXPECT_EQ(board(3, 4), enc::TheEnd);
    EXPECT_EQ(cellPixel(3, 5), flatColour(tile::gold)) << "what is left is not scorched";
    EXPECT_EQ(cellPixel(3, 6), flatColour(tile::scorch));
}

TEST_F(SpellsTest, WhatAnEyeHidesStaysHiddenThroughSunBoltAndHand) {
    onlyColumnIs(3);
    pile(3, {enc::Skeleton, enc::SkeletonKing, enc::Empty, enc::HypnoEye});
    beam();  // the board after the flash
    chances({100, 100, 100, 100, 100});
    rolls({{100, 4}, {30, 1}, {100, 100}});  // the Gold that the King leaves is not revealed
    CastSun();
    EXPECT_EQ(cellPixel(3, 5), bareTerrain);
    beam();
    rolls({{26, 1}, {100, 50}, {26, 1}});
    boltRises(6);
    beam();
    CastLightning(1, 3);
    EXPECT_EQ(board(3, 6), enc::Empty);
    EXPECT_EQ(cellPixel(3, 6), bareTerrain);
    board(3, 6) = enc::Fruit;
    rolls({{6, 3}, {30, 15}, {30, 15}});
    EXPECT_EQ(UseHand(3, 6), 1);
    EXPECT_EQ(count(health), 3);
    EXPECT_EQ(cellPixel(3, 6), bareTerrain);
}

TEST_F(SpellsTest, TheBlastTakesTheCentreSurelyTheSidesAtThreeQuartersTheCornersAtHalf) {
    count(bombs) = 2;
    for (const int over : {0, 1}) {
        for (int i = 0; i < 9; ++i) board(2 + i / 3, 2 + i % 3) = enc::Chest;
        const int corner = 50 + over;
        const int side = 75 + over;
        chances({corner, side, corner, side, 100, side, corner, side, corner});
        DropBomb(0, 1 - over, 3, 3);
        for (int i = 0; i < 9; ++i)
            EXPECT_EQ(board(2 + i / 3, 2 + i % 3), over && i != 4 ? enc::Chest : enc::Empty) << i;
    }
    EXPECT_EQ(cellPixel(3, 3), flatColour(tile::scorch));
    EXPECT_EQ(count(bombs), 1) << "the second one was free";
}

TEST_F(SpellsTest, InACornerTheBlastRollsForFourCellsAndSparesTheEnd) {
    column(6).drawn = 53;
    board(6, 0) = enc::TheEnd;
    board(5, 0) = enc::SkeletonKing;
    chances({75, 1, 1, 1});
    DropBomb(0, 1, 6, 0);
    EXPECT_EQ(board(6, 0), enc::TheEnd);
    EXPECT_EQ(board(5, 0), enc::Empty) << "a King leaves nothing";
}

TEST_F(SpellsTest, TheBlastRedrawsAColumnWithAnEyeOnlyWhenItHitSomethingThere) {
    board(2, 0) = board(4, 0) = enc::HypnoEye;
    board(2, 5) = board(4, 5) = enc::Chest;
    beam();  // the pressed column has none, the board two
    beam();
    chances({1, 75, 1});
    beam();
    chances({100, 100, 100, 1, 76, 1});
    DropBomb(1, 1, 3, 5);
    EXPECT_EQ(cellPixel(2, 5), bareTerrain) << "the scorch is hidden";
}

TEST_F(SpellsTest, AFilthWithNowhereToSpreadIsClearedFromAfarAndItsColumnStays) {
    for (const Point at : {Point{3, 2}, Point{2, 3}, Point{4, 3}, Point{3, 4}})
        board(at.x, at.y) = enc::Darkness;
    board(3, 3) = enc::OozingFilth;
    game.inventory = {0, 0, 0, 0, 0, 0, 0, 2, 20};
    rolls({{3, 1}, {100, 100}, {9, 9}, {100, 34}});
    EXPECT_EQ(UseHand(3, 3), 1);
    EXPECT_EQ(std::tuple(board(3, 3), column(3).drawn, count(hands)), std::tuple(+enc::Empty, 0, 1));
}

TEST_F(SpellsTest, TheHandMeetsATileFromAfarAndARefusalSpendsNothing) {
    count(hands) = 2;
    board(2, 1) = enc::LockedChest;
    column(3).drawn = 57;
    board(3, 4) = enc::TheEnd;
    board(3, 2) = enc::Gold;  // past the end
    chances({1});
    for (const Point at : {Point{2, 1}, Point{2, 2}, Point{3, 4}, Point{3, 2}})
        EXPECT_EQ(UseHand(at.x, at.y), 0) << at.y;
    board(2, 1) = enc::Gold;
    rolls({{10, 7}});
    EXPECT_EQ(UseHand(2, 1), 1);
    EXPECT_EQ(column(2).drawn, 0);
    EXPECT_EQ(count(gold), 7);
    EXPECT_EQ(count(hands), 1);
    count(gold) = 0;
    board(2, 1) = enc::Thief;
    rolls({{100, 50}, {9, hands + 1}});
    EXPECT_EQ(UseHand(2, 1), 1);
    EXPECT_EQ(count(hands), 0) << "the thief took the last one";
}

}  // namespace gloomdeck
