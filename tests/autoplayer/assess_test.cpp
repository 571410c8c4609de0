// What a single cell is worth, by the state of the hero.
#include "autoplayer/autoplayer_table.h"
#include "platform/geometry.h"
#include "tests/autoplayer/autoplayer_test.h"

namespace gloomdeck {

namespace {

using namespace category;

constexpr int subject = 3;  // the column of the cell under test
constexpr int rival = 1;    // to the left, so that it wins every tie

struct Case {
    const char* name;
    enc::Code code;
    void (*prepare)();
    int value;
    int category;
    bool allowed = true;
    int row = bottomRow;
};

void nothing() {}
template <int item, int n>
void has() {
    count(item) = n;
}
template <int skill, int n>
void knows() {
    level(skill) = n;
}
template <int power>
void with() {
    turnsLeft(power) = 1;
}
template <int n>
void stunned() {
    count(health) = n;
    turnsLeft(stasis) = 1;
}
template <int n>
void lockedIn() {
    count(health) = n;
    for (const int col : {2, 4}) cell(col, bottomRow) = enc::Door;
    cell(subject, 5) = enc::Door;
}
template <int n>
void besideHiddenCells() {
    lockedIn<n>();
    cell(2, bottomRow) = enc::Chest;
    cell(2, 3) = enc::HypnoEye;
}
void nothingToTeleportTo() {
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < bottomRow; ++row) cell(col, row) = enc::Door;
    for (int col = 0; col < columnCount; ++col)
        if (col != subject) column(col).drawn = 60;  // the bottom cells there lie past the end
}

// clang-format off
const Case cases[] = {
    {"Gold", enc::Gold, nothing, 6, goodStuff},
    {"Scroll", enc::Scroll, nothing, 8, goodStuff},
    {"Empty", enc::Empty, nothing, 3, goodStuff},
    {"Chest", enc::Chest, nothing, 9, goodStuff},
    {"Fruit", enc::Fruit, nothing, 6, goodStuff},
    {"Meat", enc::Meat, nothing, 8, goodStuff},
    {"Book", enc::Book, nothing, 9, goodStuff},

    {"CaveUnderSight", enc::Cave, with<magicSight>, 20, fairlyEasy},
    {"CaveTenTorches", enc::Cave, has<torches, 10>, -1, fairlyEasy},
    {"CaveNineTorches", enc::Cave, has<torches, 9>, -9, obstacle},
    {"CaveTwoTorches", enc::Cave, has<torches, 2>, -9, obstacle},
    {"CaveOneTorch", enc::Cave, has<torches, 1>, -9, obstacle, false},
    {"DarknessUnderSight", enc::Darkness, with<magicSight>, 19, fairlyEasy},
    {"DarknessEightTorches", enc::Darkness, has<torches, 8>, -1, fairlyEasy},
    {"DarknessSevenTorches", enc::Darkness, has<torches, 7>, -9, obstacle},
    {"DarknessOneTorch", enc::Darkness, has<torches, 1>, -9, obstacle},
    {"DarknessNoTorch", enc::Darkness, nothing, -9, obstacle, false},

    {"BackpackPlain", enc::Backpack, nothing, 7, goodStuff},
    {"BackpackKeysAndTorches", enc::Backpack, [] { count(keys) = count(torches) = 8; }, 4, goodStuff},
    {"BackpackPicksAndTorches", enc::Backpack, [] { level(lockpicking) = 2; count(torches) = 8; }, 4, goodStuff},
    {"BackpackFewKeys", enc::Backpack, [] { count(keys) = 7; level(lockpicking) = 1; count(torches) = 8; }, 7, goodStuff},
    {"BackpackFewTorches", enc::Backpack, [] { count(keys) = 8; count(torches) = 7; }, 7, goodStuff},

    {"LockedChestEightKeys", enc::LockedChest, has<keys, 8>, 10, goodStuff},
    {"LockedChestTwoKeys", enc::LockedChest, has<keys, 2>, 8, fairlyEasy},
    {"LockedChestGoodPicks", enc::LockedChest, knows<lockpicking, 10>, 8, fairlyEasy},
    {"LockedChestOneKey", enc::LockedChest, has<keys, 1>, 1, obstacle},
    {"LockedChestPoorPicks", enc::LockedChest, knows<lockpicking, 9>, 1, obstacle},
    {"LockedChestOnePick", enc::LockedChest, knows<lockpicking, 1>, 1, obstacle},
    {"LockedChestNothing", enc::LockedChest, nothing, -10, obstacle, false},
    {"Flower", enc::Flower, nothing, 7, fairlyEasy},
    {"FlowerUnderSight", enc::Flower, with<magicSight>, 0, obstacle},

    {"DoorGoodPicks", enc::Door, knows<lockpicking, 20>, -1, fairlyEasy},
    {"DoorEightKeys", enc::Door, has<keys, 8>, -1, fairlyEasy},
    {"DoorPoorPicks", enc::Door, [] { level(lockpicking) = 19; count(keys) = 7; }, -9, obstacle},
    {"DoorOneKey", enc::Door, has<keys, 1>, -9, obstacle},
    {"DoorOnePick", enc::Door, knows<lockpicking, 1>, -9, obstacle},
    {"DoorNothing", enc::Door, nothing, -14, obstacle, false},
    {"DoubleDoorGoodPicks", enc::DoubleDoor, knows<lockpicking, 25>, -1, fairlyEasy},
    {"DoubleDoorTenKeys", enc::DoubleDoor, has<keys, 10>, -1, fairlyEasy},
    {"DoubleDoorPoorPicks", enc::DoubleDoor, [] { level(lockpicking) = 24; count(keys) = 9; }, -10, obstacle},
    {"DoubleDoorTwoKeys", enc::DoubleDoor, has<keys, 2>, -10, obstacle},
    {"DoubleDoorTwoPicks", enc::DoubleDoor, knows<lockpicking, 2>, -10, obstacle},
    {"DoubleDoorOneOfEach", enc::DoubleDoor, [] { count(keys) = level(lockpicking) = 1; }, -15, obstacle, false},

    {"TrapHealthy", enc::Trap, has<health, 61>, -2, fairlyEasy},
    {"TrapWeak", enc::Trap, has<health, 60>, -10, obstacle},
    {"TrapDead", enc::Trap, has<health, -5>, -10, obstacle},
    {"SkeletonHealthy", enc::Skeleton, has<health, 19>, -2, fairlyEasy},
    {"SkeletonWeak", enc::Skeleton, has<health, 18>, -10, obstacle},
    {"SkeletonDead", enc::Skeleton, nothing, -15, obstacle, false},
    {"SkeletonDeadAbove", enc::Skeleton, nothing, -10, obstacle, false, 5},
    {"KingHealthy", enc::SkeletonKing, has<health, 55>, -1, fairlyEasy},
    {"KingWeak", enc::SkeletonKing, has<health, 54>, -9, obstacle},
    {"KingDead", enc::SkeletonKing, nothing, -15, obstacle, false},
    {"KingDeadAbove", enc::SkeletonKing, nothing, -9, obstacle, false, 5},
    {"EyeHealthy", enc::HypnoEye, has<health, 51>, -2, fairlyEasy},
    {"EyeWeak", enc::HypnoEye, has<health, 50>, -10, obstacle},
    {"EyeDead", enc::HypnoEye, nothing, -15, obstacle, false},
    {"EyeDeadAbove", enc::HypnoEye, nothing, -10, obstacle, false, 5},

    {"GhostFree", enc::Ghost, has<health, 99>, -20, grief},
    {"GhostFreeDead", enc::Ghost, nothing, -20, grief},
    {"GhostLockedInHealthy", enc::Ghost, lockedIn<7>, -2, fairlyEasy},
    {"GhostLockedInWeak", enc::Ghost, lockedIn<6>, -10, obstacle},
    {"GhostLockedInDead", enc::Ghost, lockedIn<0>, -10, grief, false},
    {"GhostBesideHidden", enc::Ghost, besideHiddenCells<99>, -20, grief},
    {"GhostBesideHiddenDead", enc::Ghost, besideHiddenCells<0>, -20, grief, false},
    {"GhostStunnedHealthy", enc::Ghost, stunned<7>, 12, fairlyEasy},
    {"GhostStunnedWeak", enc::Ghost, stunned<6>, -2, obstacle},
    {"GhostStunnedDead", enc::Ghost, stunned<0>, -10, grief, false},

    {"ThiefStunned", enc::Thief, stunned<0>, 18, fairlyEasy},
    {"ThiefStunnedAbove", enc::Thief, stunned<9>, -20, fairlyEasy, true, 5},
    {"ThiefFree", enc::Thief, has<bombs, 1>, -20, grief},
    {"ThiefFreeAbove", enc::Thief, has<bombs, 1>, -20, grief, true, 5},
    {"ThiefNothingToTake", enc::Thief, nothing, -20, grief, false},
    {"ThiefDebtsOutweigh", enc::Thief, [] { count(bombs) = 3; count(health) = -3; }, -20, grief, false},
    {"MasterThiefStunned", enc::MasterThief, stunned<0>, 20, fairlyEasy},
    {"MasterThiefStunnedAbove", enc::MasterThief, stunned<9>, -18, fairlyEasy, true, 5},
    {"MasterThiefFree", enc::MasterThief, has<health, 1>, -18, grief},
    {"MasterThiefNothingToTake", enc::MasterThief, nothing, -18, grief, false},

    {"FilthStunnedHealthy", enc::OozingFilth, stunned<31>, 16, fairlyEasy},
    {"FilthStunnedWeak", enc::OozingFilth, stunned<30>, -10, obstacle},
    {"FilthStunnedDead", enc::OozingFilth, stunned<0>, -20, grief, false},
    {"FilthStunnedAbove", enc::OozingFilth, stunned<99>, -10, obstacle, true, 5},
    {"FilthStunnedAboveDead", enc::OozingFilth, stunned<0>, -10, grief, false, 5},
    {"FilthFree", enc::OozingFilth, has<health, 1>, -20, grief},
    {"FilthFreeDead", enc::OozingFilth, nothing, -22, grief, false},
    {"FilthFreeAbove", enc::OozingFilth, has<health, 1>, -10, grief, true, 5},
    {"FilthFreeAboveDead", enc::OozingFilth, nothing, -10, grief, false, 5},
    {"DemonStunnedHealthy", enc::Demon, stunned<66>, 15, fairlyEasy, false},
    {"DemonStunnedWeak", enc::Demon, stunned<65>, -10, obstacle, false},
    {"DemonStunnedDead", enc::Demon, stunned<0>, -20, grief, false},
    {"DemonFree", enc::Demon, has<health, 1>, -20, grief},
    {"DemonFreeDead", enc::Demon, nothing, -22, grief},
    {"DemonFreeAboveDead", enc::Demon, nothing, -10, grief, true, 5},
    {"DemonNowhereToGo", enc::Demon, [] { nothingToTeleportTo(); count(health) = 1; }, -20, grief},
    {"DemonNowhereToGoDead", enc::Demon, nothingToTeleportTo, -22, grief, false},
};
// clang-format on

class AssessTest : public AutoplayerTest, public ::testing::WithParamInterface<Case> {};

// The one column that may be chosen beside a rival whose bottom tile is worth rivalValue, or -1. The rival
// looks the same further up, so only the bottom values tell them apart.
int chosenBeside(Assessment assessment, int rivalValue) {
    for (int row = 0; row < bottomRow; ++row) assessment.at(rival, row) = assessment.at(subject, row);
    for (int col = 0; col < columnCount; ++col)
        if (col != subject) assessment.at(col, bottomRow).allowed = 0;
    assessment.at(rival, bottomRow) = {
        .value = rivalValue, .category = assessment.at(subject, bottomRow).category, .allowed = 1};
    return chooseColumn(assessment);
}

int bitOf(int category) {
    switch (category) {
        case fairlyEasy: return fairlyEasyBit;
        case obstacle: return obstaclesBit;
        case grief: return griefBit;
        default: return goodStuffBit;
    }
}

}  // namespace

TEST_P(AssessTest, DecidesTheChoice) {
    const Case& c = GetParam();
    board(subject, c.row) = c.code;
    c.prepare();
    const Assessment assessment = assessNow();
    const CellAssessment& cell = assessment.at(subject, c.row);
    EXPECT_EQ(cell.value, c.value);
    EXPECT_EQ(cell.category, c.category);
    EXPECT_EQ(cell.allowed, c.allowed ? 1 : 0);
    if (c.row != bottomRow) return;
    setSwitches(1 << bitOf(c.category));
    EXPECT_EQ(chosenBeside(assessment, c.value), rival);
    EXPECT_EQ(chosenBeside(assessment, c.value - 1), c.allowed ? subject : rival);
    setSwitches(switchCombinations - 1 - (1 << bitOf(c.category)));
    EXPECT_EQ(chosenBeside(assessment, c.value - 1), none) << "its switch is off";
}

INSTANTIATE_TEST_SUITE_P(Rules, AssessTest, ::testing::ValuesIn(cases),
                         [](const auto& test) { return std::string(test.param.name); });

using AutoplayerAssessment = AutoplayerTest;

TEST_F(AutoplayerAssessment, WhatCannotBeMetIsUnavailable) {
    setSwitches(switchCombinations - 1);
    fillColumn(1, enc::Chest);
    column(1).finished = 1;
    column(2).drawn = 55;  // The End lies in row 2
    fillColumn(2, enc::Chest);
    fillColumn(4, enc::Chest);
    board(4, 2) = enc::HypnoEye;
    const Assessment assessment = assessNow();
    EXPECT_EQ(assessment.at(1, 6).category, unavailable);
    EXPECT_EQ(assessment.at(1, 6).value, 0);
    EXPECT_EQ(assessment.at(2, 1).category, unavailable);
    EXPECT_EQ(assessment.at(2, 1).value, 0);
    EXPECT_EQ(assessment.at(2, 2).category, goodStuff);
    EXPECT_EQ(assessment.at(4, 2).category, obstacle) << "the eye itself is seen";
    EXPECT_EQ(assessment.at(4, 3).category, unavailable);
    EXPECT_EQ(assessment.at(4, 3).value, -100);
    EXPECT_EQ(assessment.at(4, 6).value, -100);
    turnsLeft(magicSight) = 1;
    EXPECT_EQ(assessNow().at(4, 6).value, 9);
}

TEST_F(AutoplayerAssessment, GoodStuffIsLeftAloneWhileAPowerIsWastedOnIt) {
    for (const int power : {magicSight, stasis, deflection}) {
        turnsLeft(power) = 1;
        allow({goodStuffBit, obstaclesBit, griefBit, spellsSkillsBit});
        EXPECT_FALSE(CategoryEnabled(goodStuff));
        allow({goodStuffBit, fairlyEasyBit});
        EXPECT_TRUE(CategoryEnabled(goodStuff));
        turnsLeft(power) = 0;
    }
    allow({spellsSkillsBit});
    EXPECT_TRUE(CategoryEnabled(spells));
    setSwitches(switchCombinations - 1);
    EXPECT_FALSE(CategoryEnabled(unavailable));
}

TEST_F(AutoplayerAssessment, DamageIsReducedByDeflectionThenByToughness) {
    EXPECT_EQ(ReduceDamage(60), 60);
    EXPECT_EQ(ReduceDamage(-4), 0);
    level(toughness) = 15;
    EXPECT_EQ(ReduceDamage(60), 58) << "58.5 goes to the even neighbour";
    EXPECT_EQ(ReduceDamage(61), 60) << "and so does 59.5";
    level(toughness) = 5;
    EXPECT_EQ(ReduceDamage(1), 0) << "0.5 goes down";
    level(toughness) = 25;
    turnsLeft(deflection) = 2;
    EXPECT_EQ(ReduceDamage(20), 4) << "7 - 2.5";
    EXPECT_EQ(ReduceDamage(5), 0);
    EXPECT_EQ(ReduceDamage(6), 0);
}

TEST_F(AutoplayerAssessment, ExpectedDamageIsReducedTwice) {
    EXPECT_EQ(ExpectedDamage(monster::skeleton), 18);
    EXPECT_EQ(ExpectedDamage(monster::skeletonKing), 54);
    EXPECT_EQ(ExpectedDamage(monster::demon), 65);
    level(toughness) = 25;
    EXPECT_EQ(ExpectedDamage(monster::skeleton), 14) << "15.5 to 16, 13.5 to 14";
    level(toughness) = 0;
    turnsLeft(deflection) = 2;
    EXPECT_EQ(ExpectedDamage(monster::skeleton), 2);
    EXPECT_EQ(ExpectedDamage(monster::hypnoEye), 6) << "50 to 17 to 6";
}

TEST_F(AutoplayerAssessment, AGhostIsTrappedByWallsAndPerhapsByWhatIsHidden) {
    for (int col = 0; col < columnCount; ++col) fillColumn(col, enc::Door);
    EXPECT_EQ(TrapState(3, 3), 1);
    EXPECT_EQ(TrapState(0, 0), 1);
    for (const Point open : {Point{2, 3}, Point{4, 3}, Point{3, 2}, Point{3, 4}}) {
        board(open.x, open.y) = enc::Fruit;
        EXPECT_EQ(TrapState(3, 3), 0);
        board(open.x, open.y) = enc::Door;
    }
    board(2, 3) = enc::HypnoEye;
    EXPECT_EQ(TrapState(3, 3), 3) << "the eye hides its own cell too";
    board(4, 3) = enc::Fruit;
    EXPECT_EQ(TrapState(3, 3), 0) << "one hidden, one open";
    turnsLeft(magicSight) = 1;
    board(4, 3) = enc::Door;
    EXPECT_EQ(TrapState(3, 3), 1);
    column(4).drawn = 60;
    board(4, 3) = enc::Empty;
    EXPECT_EQ(TrapState(3, 3), 0) << "a cell past the end counts as open";
}

}  // namespace gloomdeck
