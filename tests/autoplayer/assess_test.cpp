// What cells are worth, by the state of the hero, and the choice among the columns.
#include "autoplayer/autoplayer_table.h"
#include "platform/geometry.h"
#include "tests/autoplayer/autoplayer_test.h"

namespace gloomdeck {

namespace {

using namespace category;

constexpr int subject = 3;  // the column of the cell under test
constexpr int rival = 1;    // to the left, so that it wins every tie

// {how much there is, what the cell is worth then, its category, not to be chosen}
struct Step {
    int amount;
    int value;
    int category;
    bool refused = false;
};

struct Case {
    const char* name;
    enc::Code code;
    void (*prepare)();
    std::int32_t& (*resource)();
    std::vector<Step> steps;
    int row = bottomRow;
};

template <int item>
std::int32_t& of() {
    return count(item);
}
std::int32_t& picks() { return level(lockpicking); }
std::int32_t& theCell() { return cell(subject, bottomRow); }
std::int32_t& theCellAbove() { return cell(subject, 5); }

void nothing() {}
void sight() { turnsLeft(magicSight) = 1; }
void stunned() { turnsLeft(stasis) = 1; }
void lockedIn() { cell(2, bottomRow) = cell(4, bottomRow) = cell(subject, 5) = enc::Door; }
void besideHidden() {
    lockedIn();
    cell(2, 3) = enc::HypnoEye;
    cell(2, bottomRow) = enc::Chest;
}
void nowhereToGo() {
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < bottomRow; ++row) cell(col, row) = enc::Door;
    for (int col = 0; col < columnCount; ++col)
        if (col != subject) column(col).drawn = 60;  // the bottom cells there lie past the end
}

// clang-format off
const Case cases[] = {
    {"Plain", enc::Empty, nothing, theCell, {{enc::Gold, 6, goodStuff}, {enc::Scroll, 8, goodStuff},
        {enc::Empty, 3, goodStuff}, {enc::Chest, 9, goodStuff}, {enc::Fruit, 6, goodStuff},
        {enc::Meat, 8, goodStuff}, {enc::Book, 9, goodStuff}, {enc::Flower, 7, fairlyEasy}}},
    {"Sight", enc::Empty, sight, theCell,
        {{enc::Cave, 20, fairlyEasy}, {enc::Darkness, 19, fairlyEasy}, {enc::Flower, 0, obstacle}}},
    {"Cave", enc::Cave, nothing, of<torches>, {{1, -9, obstacle, true}, {2, -9, obstacle}, {9, -9, obstacle}, {10, -1, fairlyEasy}}},
    {"Darkness", enc::Darkness, nothing, of<torches>, {{0, -9, obstacle, true}, {1, -9, obstacle}, {7, -9, obstacle}, {8, -1, fairlyEasy}}},

    {"BackpackKeys", enc::Backpack, [] { count(torches) = 8; }, of<keys>, {{7, 7, goodStuff}, {8, 4, goodStuff}}},
    {"BackpackPicks", enc::Backpack, [] { count(torches) = 8; }, picks, {{1, 7, goodStuff}, {2, 4, goodStuff}}},
    {"BackpackTorches", enc::Backpack, [] { count(keys) = 8; }, of<torches>, {{7, 7, goodStuff}, {8, 4, goodStuff}}},
    {"LockedChestKeys", enc::LockedChest, nothing, of<keys>,
        {{0, -10, obstacle, true}, {1, 1, obstacle}, {2, 8, fairlyEasy}, {7, 8, fairlyEasy}, {8, 10, goodStuff}}},
    {"LockedChestPicks", enc::LockedChest, nothing, picks, {{1, 1, obstacle}, {9, 1, obstacle}, {10, 8, fairlyEasy}}},
    {"DoorKeys", enc::Door, nothing, of<keys>, {{0, -14, obstacle, true}, {1, -9, obstacle}, {7, -9, obstacle}, {8, -1, fairlyEasy}}},
    {"DoorPicks", enc::Door, nothing, picks, {{1, -9, obstacle}, {19, -9, obstacle}, {20, -1, fairlyEasy}}},
    {"DoubleDoorKeys", enc::DoubleDoor, [] { level(lockpicking) = 1; }, of<keys>,
        {{1, -15, obstacle, true}, {2, -10, obstacle}, {9, -10, obstacle}, {10, -1, fairlyEasy}}},
    {"DoubleDoorPicks", enc::DoubleDoor, nothing, picks, {{2, -10, obstacle}, {24, -10, obstacle}, {25, -1, fairlyEasy}}},

    {"Trap", enc::Trap, nothing, of<health>, {{-5, -10, obstacle}, {60, -10, obstacle}, {61, -2, fairlyEasy}}},
    {"Skeleton", enc::Skeleton, nothing, of<health>, {{0, -15, obstacle, true}, {1, -10, obstacle}, {18, -10, obstacle}, {19, -2, fairlyEasy}}},
    {"King", enc::SkeletonKing, nothing, of<health>, {{0, -15, obstacle, true}, {1, -9, obstacle}, {54, -9, obstacle}, {55, -1, fairlyEasy}}},
    {"Eye", enc::HypnoEye, nothing, of<health>, {{0, -15, obstacle, true}, {1, -10, obstacle}, {50, -10, obstacle}, {51, -2, fairlyEasy}}},
    {"FightersAbove", enc::Empty, nothing, theCellAbove,
        {{enc::Skeleton, -10, obstacle, true}, {enc::SkeletonKing, -9, obstacle, true}, {enc::HypnoEye, -10, obstacle, true}}, 5},

    {"GhostFree", enc::Ghost, nothing, of<health>, {{0, -20, grief}, {99, -20, grief}}},
    {"GhostLockedIn", enc::Ghost, lockedIn, of<health>, {{0, -10, grief, true}, {6, -10, obstacle}, {7, -2, fairlyEasy}}},
    {"GhostBesideHidden", enc::Ghost, besideHidden, of<health>, {{0, -20, grief, true}, {99, -20, grief}}},
    {"GhostStunned", enc::Ghost, stunned, of<health>, {{0, -10, grief, true}, {6, -2, obstacle}, {7, 12, fairlyEasy}}},

    {"ThievesStunned", enc::Empty, stunned, theCell, {{enc::Thief, 18, fairlyEasy}, {enc::MasterThief, 20, fairlyEasy}}},
    {"ThievesStunnedAbove", enc::Empty, stunned, theCellAbove, {{enc::Thief, -20, fairlyEasy}, {enc::MasterThief, -18, fairlyEasy}}, 5},
    {"Thief", enc::Thief, nothing, of<bombs>, {{0, -20, grief, true}, {1, -20, grief}}},
    {"ThiefDebts", enc::Thief, [] { count(bombs) = 3; }, of<health>, {{-3, -20, grief, true}, {-2, -20, grief}}},
    {"MasterThief", enc::MasterThief, nothing, of<health>, {{0, -18, grief, true}, {1, -18, grief}}},

    {"Filth", enc::OozingFilth, nothing, of<health>, {{0, -22, grief, true}, {1, -20, grief}}},
    {"FilthAbove", enc::OozingFilth, nothing, of<health>, {{0, -10, grief, true}, {1, -10, grief}}, 5},
    {"FilthStunned", enc::OozingFilth, stunned, of<health>, {{0, -20, grief, true}, {30, -10, obstacle}, {31, 16, fairlyEasy}}},
    {"FilthStunnedAbove", enc::OozingFilth, stunned, of<health>, {{0, -10, grief, true}, {99, -10, obstacle}}, 5},
    {"Demon", enc::Demon, nothing, of<health>, {{0, -22, grief}, {1, -20, grief}}},
    {"DemonAbove", enc::Demon, nothing, of<health>, {{0, -10, grief}}, 5},
    {"DemonNowhereToGo", enc::Demon, nowhereToGo, of<health>, {{0, -22, grief, true}, {1, -20, grief}}},
    {"DemonStunned", enc::Demon, stunned, of<health>, {{0, -20, grief, true}, {65, -10, obstacle, true}, {66, 15, fairlyEasy, true}}},
};
// clang-format on

constexpr std::array switchOf{0, +goodStuffOn, +fairlyEasyOn, +obstaclesOn, +spellsSkillsOn, +griefOn};

// What the assessment says of a cell, to be compared at once.
using Verdict = std::array<int, 3>;
Verdict verdictAt(const Assessment& assessment, int col, int row) {
    const CellAssessment& a = assessment.at(col, row);
    return {a.value, a.category, a.allowed};
}

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

/// The score of the first column by its values from the bottom up.
int scoreOf(const std::array<int, rowCount>& fromBottom) {
    Assessment assessment{};
    for (int row = 0; row < rowCount; ++row)
        assessment.at(0, row).value = fromBottom[static_cast<std::size_t>(bottomRow - row)];
    return ColumnScore(assessment, 0);
}

}  // namespace

class AssessTest : public AutoplayerTest, public ::testing::WithParamInterface<Case> {};

TEST_P(AssessTest, DecidesTheChoice) {
    const Case& c = GetParam();
    board(subject, c.row) = c.code;
    c.prepare();
    for (const Step& step : c.steps) {
        SCOPED_TRACE(step.amount);
        c.resource() = step.amount;
        const Assessment assessment = assessNow();
        EXPECT_EQ(verdictAt(assessment, subject, c.row),
                  (Verdict{step.value, step.category, step.refused ? 0 : 1}));
        if (c.row != bottomRow) continue;
        const int itsSwitch = switchOf[static_cast<std::size_t>(step.category)];
        allow(itsSwitch);
        EXPECT_EQ(chosenBeside(assessment, step.value), rival);
        EXPECT_EQ(chosenBeside(assessment, step.value - 1), step.refused ? rival : subject);
        allow(everySwitchOn - itsSwitch);
        EXPECT_EQ(chosenBeside(assessment, step.value - 1), none) << "its switch is off";
    }
}

INSTANTIATE_TEST_SUITE_P(Rules, AssessTest, ::testing::ValuesIn(cases),
                         [](const auto& test) { return std::string(test.param.name); });

using AutoplayerAssessment = AutoplayerTest;
using AutoplayerChoice = AutoplayerTest;

TEST_F(AutoplayerAssessment, WhatCannotBeMetIsUnavailable) {
    for (const int col : {1, 2, 4}) fillColumn(col, enc::Chest);
    column(1).finished = 1;
    column(2).drawn = 55;  // The End lies in row 2
    board(4, 2) = enc::HypnoEye;
    const Assessment assessment = assessNow();
    constexpr Verdict gone{0, unavailable, 0};
    constexpr Verdict hidden{-100, unavailable, 0};
    EXPECT_EQ(verdictAt(assessment, 1, 6), gone);
    EXPECT_EQ(verdictAt(assessment, 2, 1), gone);
    EXPECT_EQ(assessment.at(2, 2).category, goodStuff);
    EXPECT_EQ(assessment.at(4, 2).category, obstacle) << "the eye itself is seen";
    EXPECT_EQ(verdictAt(assessment, 4, 3), hidden);
    EXPECT_EQ(verdictAt(assessment, 4, 6), hidden);
    turnsLeft(magicSight) = 1;
    EXPECT_EQ(assessNow().at(4, 6).value, 9);
}

TEST_F(AutoplayerAssessment, GoodStuffIsLeftAloneWhileAPowerIsWastedOnIt) {
    for (const int power : {magicSight, stasis, deflection}) {
        turnsLeft(power) = 1;
        allow(everySwitchOn - fairlyEasyOn);
        EXPECT_FALSE(CategoryEnabled(goodStuff));
        allow(goodStuffOn + fairlyEasyOn);
        EXPECT_TRUE(CategoryEnabled(goodStuff));
        turnsLeft(power) = 0;
    }
    allow(everySwitchOn);
    EXPECT_FALSE(CategoryEnabled(unavailable));
}

TEST_F(AutoplayerAssessment, DamageIsReducedByDeflectionThenByToughnessAndTwiceIfExpected) {
    const auto shield = [](int tough, int deflected) {
        level(toughness) = tough;
        turnsLeft(deflection) = deflected;
    };
    EXPECT_EQ(ReduceDamage(-4), 0);
    shield(15, 0);
    EXPECT_EQ(ReduceDamage(60), 58) << "58.5 goes to the even neighbour";
    EXPECT_EQ(ReduceDamage(61), 60) << "and so does 59.5";
    shield(25, 2);
    EXPECT_EQ(ReduceDamage(20), 4) << "7 - 2.5";
    EXPECT_EQ(ReduceDamage(5), 0);
    shield(25, 0);
    EXPECT_EQ(ExpectedDamage(monster::skeleton), 14) << "15.5 to 16, 13.5 to 14";
    shield(0, 2);
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

TEST_F(AutoplayerChoice, TheLookAheadFadesWithDistanceAndTheBottomTileDecidesTheSign) {
    EXPECT_EQ(scoreOf({6, 9, -9, 3, 3, 3, 3}), 56);
    EXPECT_EQ(scoreOf({-9, 6, 6, 6, 6, 6, 6}), -42);
    EXPECT_EQ(scoreOf({1, 20, 20, 20, 20, 20, 20}), 7 + 40 + 38 + 18 + 17 + 16 + 15);
    EXPECT_EQ(scoreOf({1, 2, 2, 2, 2, 2, 2}), 7 + 4 + 2 + 1 + 1 + 1 + 1) << "never faded below 1";
    EXPECT_EQ(scoreOf({9, -2, -2, -2, -2, -2, -2}), 63 - 2 - 1 - 1 - 1 - 1 - 1) << "nor above -1";
    EXPECT_EQ(scoreOf({0, 0, 5, 0, 0, 0, 0}), 8) << "zeros do not break the chain";
    EXPECT_EQ(scoreOf({9, -1, 6, 0, 0, 0, 0}), 63 - 1 + 5) << "what stands on a bad tile is not doubled";
    EXPECT_EQ(scoreOf({0, -9, -9, -9, -9, -9, -9}), 1);
    EXPECT_EQ(scoreOf({-1, 20, 20, 20, 20, 20, 20}), -1);
    board(0, 6) = enc::TheEnd;
    EXPECT_EQ(scoreOf({0, 20, 20, 20, 20, 20, 20}), 0) << "above The End nothing counts";
}

TEST_F(AutoplayerChoice, OfEqualColumnsTheLeftmostIsTaken) {
    allow(goodStuffOn);
    EXPECT_EQ(chooseColumn(assessNow()), 0);
    for (const int col : {2, 5}) board(col, 6) = enc::Gold;
    EXPECT_EQ(chooseColumn(assessNow()), 2);
    board(5, 0) = enc::Chest;
    EXPECT_EQ(chooseColumn(assessNow()), 5);
}

TEST_F(AutoplayerChoice, AForbiddenTileHidesNoWorseOne) {
    allow(obstaclesOn);
    onlyColumns({3, 5});
    board(3, 6) = enc::LockedChest;
    board(5, 6) = enc::Trap;
    EXPECT_EQ(chooseColumn(assessNow()), 5) << "nothing opens the chest";
    count(keys) = 1;
    EXPECT_EQ(chooseColumn(assessNow()), 3);
}

TEST_F(AutoplayerChoice, TheEndStandsBetweenWhatIsGoodAndWhatIsBad) {
    allow(goodStuffOn + obstaclesOn);
    onlyColumns({1, 3, 5});
    for (const int col : {1, 5}) board(col, 6) = enc::Trap;
    board(3, 6) = enc::TheEnd;
    EXPECT_EQ(chooseColumn(assessNow()), 3);
    fillColumn(5, enc::Trap);
    board(5, 6) = enc::Empty;
    EXPECT_EQ(chooseColumn(assessNow()), 5);
}

}  // namespace gloomdeck
