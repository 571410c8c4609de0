#include "rules/spells.h"

#include "platform/geometry.h"

#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

void chances(std::initializer_list<int> drawn) {
    for (const int roll : drawn) rolls({{100, roll}});
}

// Casts over a column of Empty cells with one code in its bottom cell, on which that roll falls.
int castOnto(int item, int code, int boost, int roll) {
    makeEmptyBoard();
    for (const int other : {0, 1, 2, 4, 5, 6}) column(other).finished = 1;
    cell(3, bottomRow) = code;
    game.skills = {0, 0, boost, boost, boost, 0};
    if (item == lightningBolts) {
        rolls({{26, 1}, {100, roll}, {26, 1}});
        for (int i = 0; i < 6; ++i) rolls({{100, 100}, {26, 1}});
        CastLightning(0, 3);
    } else {
        chances({100, 100, 100, 100, 100, 100, roll});
        item == suns ? CastSun() : CastShield();
    }
    return cell(3, bottomRow);
}

}  // namespace

using SpellsTest = GameTest;

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
    EXPECT_EQ(count(bombs), 1) << "the second one was free";
}

TEST_F(SpellsTest, AFilthWithNowhereToSpreadIsClearedFromAfarAndItsColumnStays) {
    for (const Point at : {Point{3, 2}, Point{2, 3}, Point{4, 3}, Point{3, 4}})
        board(at.x, at.y) = enc::Darkness;
    board(3, 3) = enc::OozingFilth;
    game.inventory = {0, 0, 0, 0, 0, 0, 0, 1, 20};
    rolls({{3, 1}, {100, 100}, {9, 9}, {100, 34}});
    EXPECT_EQ(UseHand(3, 3), 1);
    EXPECT_EQ(std::tuple(board(3, 3), column(3).drawn, count(hands)), std::tuple(+enc::Empty, 0, 0));
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
