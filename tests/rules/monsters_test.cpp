// The monsters that move when they are met.
#include "rules/monsters.h"

#include "tests/rules/rule_test.h"

namespace gloomdeck {

namespace {

constexpr FedRoll rightFirst{100, 50};

// A damage of 4, after which the acid takes one health.
int meetFilth(std::vector<FedRoll> more, Point at = {3, 6}) {
    count(health) = 30;
    level(thiefProtection) = 95;  // of no use against acid
    more.insert(more.begin(), {{3, 1}, noToughness, {9, 9}, {100, 34}});
    const int result = RuleTest::meet(enc::OozingFilth, more, at);
    EXPECT_EQ(count(health), 25);
    return result;
}

std::vector<FedRoll> picks(const std::vector<Point>& cells) {
    std::vector<FedRoll> drawn;
    for (const Point cell : cells) drawn.insert(drawn.end(), {{7, cell.x + 1}, {7, cell.y + 1}});
    return drawn;
}

}  // namespace

using MonsterTest = RuleTest;

TEST_F(MonsterTest, AGhostFleesUpThenToTheSidesInRolledOrderThenDown) {
    for (const FedRoll side : {rightFirst, FedRoll{100, 51}}) {
        const int nearer = side.value > 50 ? 2 : 4;
        fillBoard(enc::Empty);
        for (const Point to : {Point{3, 2}, {nearer, 3}, {6 - nearer, 3}, {3, 4}}) {
            EXPECT_EQ(meet(enc::Ghost, {side}, {3, 3}), 1);
            EXPECT_EQ(board(to.x, to.y), enc::Ghost);
            EXPECT_EQ(board(3, 3), enc::Empty);
            board(to.x, to.y) = enc::Door;
        }
        EXPECT_EQ(column(3).drawn, 0);
    }
}

TEST_F(MonsterTest, FilthSpreadsToEveryNeighbourAndLosesWhatWasThere) {
    board(3, 2) = enc::Chest;
    EXPECT_EQ(meetFilth({}, {3, 3}), 1);
    EXPECT_EQ(countOf(enc::OozingFilth), 4);
    EXPECT_EQ(meetFilth({}), 1);
    EXPECT_EQ(countOf(enc::OozingFilth), 4 + 3);
    EXPECT_EQ(column(3).drawn, 0);
}

TEST_F(MonsterTest, FilthWithoutRoomIsClearedLikeAnyMonster) {
    fillBoard(enc::Darkness);
    column(4).drawn = 60;
    board(4, 6) = enc::Empty;
    EXPECT_EQ(meetFilth({doorDealt}), 1);
    EXPECT_EQ(countOf(enc::OozingFilth), 0);
    EXPECT_TRUE(advanced());
}

TEST_F(MonsterTest, FilthSpreadsThoughItsAcidFindsNothing) {
    count(health) = 4;
    EXPECT_EQ(meet(enc::OozingFilth, {{3, 1}, noToughness}, {6, 6}), 1);
    EXPECT_EQ(newestMessage(), "Need total stats above 0.");
    EXPECT_FALSE(ui.messagePosted);
    EXPECT_EQ(board(5, 6), enc::OozingFilth);
}

TEST_F(MonsterTest, ADemonTeleportsToTheFirstPickThatItMayEnter) {
    fillBoard(enc::Door);
    column(1).drawn = 60;
    board(1, 1) = enc::Empty;
    board(5, 2) = enc::LockedChest;
    EXPECT_EQ(meet(enc::Demon, picks({{3, 6}, {1, 1}, {2, 5}, {5, 2}})), 1);
    EXPECT_EQ(board(5, 2), enc::Demon);
    EXPECT_EQ(board(3, 6), enc::Empty);
    EXPECT_EQ(column(3).drawn, 0);
}

TEST_F(MonsterTest, ADemonScansTheBoardRowByRowFromItsSixthPick) {
    // clang-format off
    for (const auto& [last, nearer, farther] : std::vector<std::array<Point, 3>>{
        {{{5, 2}, {6, 2}, {5, 3}}}, {{{5, 2}, {0, 3}, {4, 2}}},
        {{{6, 6}, {0, 0}, {5, 6}}}, {{{5, 2}, {4, 2}, {4, 2}}}}) {
        // clang-format on
        fillBoard(enc::Door);
        board(nearer.x, nearer.y) = board(farther.x, farther.y) = enc::Gold;
        EXPECT_EQ(meet(enc::Demon, picks({{1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}, last})), 1);
        EXPECT_EQ(board(nearer.x, nearer.y), enc::Demon);
    }
}

}  // namespace gloomdeck
