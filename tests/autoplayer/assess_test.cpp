// What cells are worth, by the state of the hero, and the choice among the columns.
#include "autoplayer/autoplayer_table.h"
#include "tests/autoplayer/autoplayer_test.h"

namespace gloomdeck {

namespace {

using enum enc::Code;
using category::grief;
constexpr int good = category::goodStuff;
constexpr int easy = category::fairlyEasy;
constexpr int hard = category::obstacle;

constexpr int subject = 3;  // the column of the cell under test
constexpr int rival = 1;    // to the left, so that it wins every tie

// What the hero has (or what lies there), the value and the category of the cell then, 1 where it is refused.
using Step = std::array<int, 4>;

struct Case {
    const char* name;
    int code;
    int row;
    void (*prepare)();
    std::int32_t* resource;
    std::vector<Step> steps;
};

void plain() {}
void sight() { turnsLeft(magicSight) = 1; }
void stunned() { turnsLeft(stasis) = 1; }
void lockedIn() { cell(2, bottomRow) = cell(4, bottomRow) = cell(subject, 5) = Door; }
void besideHidden() {
    lockedIn();
    cell(2, 3) = HypnoEye;
    cell(2, bottomRow) = Chest;
}
void nowhereToGo() {
    for (int col = 0; col < columnCount; ++col) {
        std::fill_n(column(col).cells.begin(), bottomRow, Door);
        if (col != subject) column(col).drawn = 60;  // the bottom cells there lie past the end
    }
}

// clang-format off
const Case cases[] = {
    {"Plain", Empty, 6, plain, &cell(subject, 6), {{Gold, 6, good}, {Scroll, 8, good}, {Empty, 3, good},
        {Chest, 9, good}, {Fruit, 6, good}, {Meat, 8, good}, {Book, 9, good}, {Flower, 7, easy}}},
    {"Sight", Empty, 6, sight, &cell(subject, 6), {{Cave, 20, easy}, {Darkness, 19, easy}, {Flower, 0, hard}}},
    {"Cave", Cave, 6, plain, &count(torches), {{1, -9, hard, 1}, {2, -9, hard}, {9, -9, hard}, {10, -1, easy}}},
    {"Darkness", Darkness, 6, plain, &count(torches), {{0, -9, hard, 1}, {1, -9, hard}, {7, -9, hard}, {8, -1, easy}}},

    {"BackpackKeys", Backpack, 6, [] { count(torches) = 8; }, &count(keys), {{7, 7, good}, {8, 4, good}}},
    {"BackpackPicks", Backpack, 6, [] { count(torches) = 8; }, &level(lockpicking), {{1, 7, good}, {2, 4, good}}},
    {"BackpackTorches", Backpack, 6, [] { count(keys) = 8; }, &count(torches), {{7, 7, good}, {8, 4, good}}},
    {"ChestKeys", LockedChest, 6, plain, &count(keys),
        {{0, -10, hard, 1}, {1, 1, hard}, {2, 8, easy}, {7, 8, easy}, {8, 10, good}}},
    {"ChestPicks", LockedChest, 6, plain, &level(lockpicking), {{1, 1, hard}, {9, 1, hard}, {10, 8, easy}}},
    {"DoorKeys", Door, 6, plain, &count(keys), {{0, -14, hard, 1}, {1, -9, hard}, {7, -9, hard}, {8, -1, easy}}},
    {"DoorPicks", Door, 6, plain, &level(lockpicking), {{1, -9, hard}, {19, -9, hard}, {20, -1, easy}}},
    {"DoubleDoorKeys", DoubleDoor, 6, [] { level(lockpicking) = 1; }, &count(keys),
        {{1, -15, hard, 1}, {2, -10, hard}, {9, -10, hard}, {10, -1, easy}}},
    {"DoubleDoorPicks", DoubleDoor, 6, plain, &level(lockpicking), {{2, -10, hard}, {24, -10, hard}, {25, -1, easy}}},

    {"Trap", Trap, 6, plain, &count(health), {{-5, -10, hard}, {60, -10, hard}, {61, -2, easy}}},
    {"Skeleton", Skeleton, 6, plain, &count(health), {{0, -15, hard, 1}, {1, -10, hard}, {18, -10, hard}, {19, -2, easy}}},
    {"King", SkeletonKing, 6, plain, &count(health), {{0, -15, hard, 1}, {1, -9, hard}, {54, -9, hard}, {55, -1, easy}}},
    {"Eye", HypnoEye, 6, plain, &count(health), {{0, -15, hard, 1}, {1, -10, hard}, {50, -10, hard}, {51, -2, easy}}},
    {"Above", Empty, 5, plain, &cell(subject, 5),
        {{Skeleton, -10, hard, 1}, {SkeletonKing, -9, hard, 1}, {HypnoEye, -10, hard, 1}, {Demon, -10, grief}}},

    {"GhostFree", Ghost, 6, plain, &count(health), {{0, -20, grief}, {99, -20, grief}}},
    {"GhostLockedIn", Ghost, 6, lockedIn, &count(health), {{0, -10, grief, 1}, {6, -10, hard}, {7, -2, easy}}},
    {"GhostBesideHidden", Ghost, 6, besideHidden, &count(health), {{0, -20, grief, 1}, {99, -20, grief}}},
    {"GhostStunned", Ghost, 6, stunned, &count(health), {{0, -10, grief, 1}, {6, -2, hard}, {7, 12, easy}}},

    {"ThievesStunned", Empty, 6, stunned, &cell(subject, 6), {{Thief, 18, easy}, {MasterThief, 20, easy}}},
    {"ThievesStunnedAbove", Empty, 5, stunned, &cell(subject, 5), {{Thief, -20, easy}, {MasterThief, -18, easy}}},
    {"Thief", Thief, 6, [] { count(bombs) = 3; }, &count(health), {{-3, -20, grief, 1}, {-2, -20, grief}}},
    {"MasterThief", MasterThief, 6, plain, &count(bombs), {{0, -18, grief, 1}, {1, -18, grief}}},

    {"Filth", OozingFilth, 6, plain, &count(health), {{0, -22, grief, 1}, {1, -20, grief}}},
    {"FilthAbove", OozingFilth, 5, plain, &count(health), {{0, -10, grief, 1}, {1, -10, grief}}},
    {"FilthStunned", OozingFilth, 6, stunned, &count(health), {{0, -20, grief, 1}, {30, -10, hard}, {31, 16, easy}}},
    {"FilthStunnedAbove", OozingFilth, 5, stunned, &count(health), {{0, -10, grief, 1}, {99, -10, hard}}},
    {"Demon", Demon, 6, plain, &count(health), {{0, -22, grief}, {1, -20, grief}}},
    {"DemonNowhereToGo", Demon, 6, nowhereToGo, &count(health), {{0, -22, grief, 1}, {1, -20, grief}}},
    {"DemonStunned", Demon, 6, stunned, &count(health), {{0, -20, grief, 1}, {65, -10, hard, 1}, {66, 15, easy, 1}}},
};
// clang-format on

constexpr std::array switchOf{0, +goodOn, +easyOn, +hardOn, +spellsOn, +griefOn};

std::array<int, 3> verdict(const CellAssessment& a) { return {a.value, a.category, a.allowed}; }

// The column that is chosen of the subject and a rival whose bottom tile is worth rivalValue, or -1. The
// rival looks the same further up, so only the bottom values tell them apart.
int chosenBeside(const Assessment& assessment, int rivalValue) {
    Assessment pair{};  // the other columns are of no category
    pair.cells[rival] = pair.cells[subject] = assessment.cells[subject];
    pair.at(rival, bottomRow).value = rivalValue;
    pair.at(rival, bottomRow).allowed = 1;
    return chooseColumn(pair);
}

/// The score of the first column by its values from the bottom up.
int scoreOf(const std::array<int, rowCount>& fromBottom) {
    Assessment assessment{};
    for (int row = 0; row < rowCount; ++row)
        assessment.at(0, row).value = fromBottom[static_cast<std::size_t>(bottomRow - row)];
    return ColumnScore(assessment, 0);
}

}  // namespace

using ThoughtTest = RulesTest;

class AssessTest : public RulesTest, public ::testing::WithParamInterface<Case> {};

TEST_P(AssessTest, DecidesTheChoice) {
    const Case& c = GetParam();
    board(subject, c.row) = c.code;
    c.prepare();
    for (const auto& [amount, value, category, refused] : c.steps) {
        SCOPED_TRACE(amount);
        *c.resource = amount;
        const Assessment assessment = assessNow();
        EXPECT_EQ(verdict(assessment.at(subject, c.row)), (std::array{value, category, 1 - refused}));
        if (c.row != bottomRow) continue;
        const int itsSwitch = switchOf[static_cast<std::size_t>(category)];
        allow(itsSwitch);
        EXPECT_EQ(chosenBeside(assessment, value), rival);
        EXPECT_EQ(chosenBeside(assessment, value - 1), refused != 0 ? rival : subject);
        allow(allOn - itsSwitch);
        EXPECT_EQ(chosenBeside(assessment, value - 1), none) << "its switch is off";
    }
}

INSTANTIATE_TEST_SUITE_P(Rules, AssessTest, ::testing::ValuesIn(cases),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(ThoughtTest, WhatCannotBeMetIsUnavailable) {
    for (const int col : {1, 2, 4}) fillColumn(col, Chest);
    column(1).finished = 1;
    column(2).drawn = 55;  // The End lies in row 2
    board(4, 2) = HypnoEye;
    const Assessment a = assessNow();
    const std::array gone{0, category::unavailable, 0};
    const std::array hidden{-100, category::unavailable, 0};
    EXPECT_EQ(
        (std::array{verdict(a.at(1, 6)), verdict(a.at(2, 1)), verdict(a.at(4, 3)), verdict(a.at(4, 6))}),
        (std::array{gone, gone, hidden, hidden}));
    EXPECT_EQ(a.at(2, 2).category, good);
    EXPECT_EQ(a.at(4, 2).category, hard) << "the eye itself is seen";
    turnsLeft(magicSight) = 1;
    EXPECT_EQ(assessNow().at(4, 6).value, 9);
}

TEST_F(ThoughtTest, GoodStuffIsLeftAloneWhileAPowerIsWastedOnIt) {
    for (const int power : {magicSight, stasis, deflection}) {
        turnsLeft(power) = 1;
        allow(allOn - easyOn);
        EXPECT_FALSE(CategoryEnabled(good));
        allow(goodOn + easyOn);
        EXPECT_TRUE(CategoryEnabled(good));
        turnsLeft(power) = 0;
    }
}

TEST_F(ThoughtTest, DamageIsReducedByDeflectionThenByToughnessAndTwiceIfExpected) {
    const std::array<int, 4> shields[] = {{0, 0, -4, 0},   {0, 0, 1, 1},  {0, 1, 4, 1},
                                          {0, 1, 5, 2},    {5, 0, 1, 0},  {15, 0, 60, 58},
                                          {15, 0, 61, 60}, {25, 2, 5, 0}, {25, 2, 20, 4}};
    for (const auto& [tough, deflected, damage, left] : shields) {
        level(toughness) = tough;
        turnsLeft(deflection) = deflected;
        EXPECT_EQ(ReduceDamage(damage), left);
    }
    EXPECT_EQ(ExpectedDamage(monster::hypnoEye), 2) << "50 to 17 to 14, then to 5 and to 2";
}

TEST_F(ThoughtTest, AGhostIsTrappedByWallsAndPerhapsByWhatIsHidden) {
    for (int col = 0; col < columnCount; ++col) fillColumn(col, Door);
    const std::array<int, 5> neighbours[] = {
        {Door, Door, Door, Door, 1},    {Fruit, Door, Door, Door, 0}, {Door, Fruit, Door, Door, 0},
        {Door, Door, Fruit, Door, 0},   {Door, Door, Door, Fruit, 0}, {HypnoEye, Fruit, Door, Door, 0},
        {HypnoEye, Door, Door, Door, 3}};  // the eye hides its own cell too
    for (const auto& [left, right, above, below, state] : neighbours) {
        board(2, 3) = left;
        board(4, 3) = right;
        board(3, 2) = above;
        board(3, 4) = below;
        EXPECT_EQ(TrapState(3, 3), state);
    }
    turnsLeft(magicSight) = 1;
    EXPECT_EQ(TrapState(3, 3), 1);
    column(4).drawn = 60;
    board(4, 3) = Empty;
    EXPECT_EQ(TrapState(3, 3), 0) << "a cell past the end counts as open";
}

TEST_F(ThoughtTest, TheLookAheadFadesWithDistanceAndTheBottomTileDecidesTheSign) {
    EXPECT_EQ(scoreOf({6, 9, -9, 3, 3, 3, 3}), 56);
    EXPECT_EQ(scoreOf({-9, 6, 6, 6, 6, 6, 6}), -42);
    EXPECT_EQ(scoreOf({1, 20, 20, 20, 20, 20, 20}), 7 + 40 + 38 + 18 + 17 + 16 + 15);
    EXPECT_EQ(scoreOf({1, 2, 2, 2, 2, 2, 2}), 7 + 4 + 2 + 1 + 1 + 1 + 1) << "never faded below 1";
    EXPECT_EQ(scoreOf({9, -2, -2, -2, -2, -2, -2}), 63 - 2 - 1 - 1 - 1 - 1 - 1) << "nor above -1";
    EXPECT_EQ(scoreOf({0, 0, 5, 0, 0, 0, 0}), 8) << "zeros do not break the chain";
    EXPECT_EQ(scoreOf({9, -1, 6, 0, 0, 0, 0}), 63 - 1 + 5) << "what stands on a bad tile is not doubled";
    EXPECT_EQ(scoreOf({0, -9, -9, -9, -9, -9, -9}), 1);
    EXPECT_EQ(scoreOf({-1, 20, 20, 20, 20, 20, 20}), -1);
    board(0, 6) = TheEnd;
    EXPECT_EQ(scoreOf({0, 20, 20, 20, 20, 20, 20}), 0) << "above The End nothing counts";
}

TEST_F(ThoughtTest, OfTheBestColumnsTheLeftmostIsChosen) {
    allow(goodOn + hardOn);
    board(2, 6) = board(5, 6) = Gold;
    EXPECT_EQ(chooseColumn(assessNow()), 2);
    board(5, 0) = Chest;
    EXPECT_EQ(chooseColumn(assessNow()), 5);
    onlyColumns({3, 5});
    fillColumn(5, Trap);
    board(3, 6) = LockedChest;
    EXPECT_EQ(chooseColumn(assessNow()), 5) << "nothing opens the chest";
    count(keys) = 1;
    EXPECT_EQ(chooseColumn(assessNow()), 3);
    board(3, 6) = TheEnd;
    EXPECT_EQ(chooseColumn(assessNow()), 3) << "better than what is bad";
    board(5, 6) = Empty;
    EXPECT_EQ(chooseColumn(assessNow()), 5) << "and worse than what is good";
}

}  // namespace gloomdeck
