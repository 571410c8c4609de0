// The monsters that move when they are met.
#include "rules/monsters.h"

#include "platform/host_script.h"
#include "rules/encounter.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "shell/tiles.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr int normalSpeed = 2;
constexpr FedRoll rightFirst{100, 50};
constexpr FedRoll leftFirst{100, 51};
constexpr FedRoll noToughness{100, 100};
constexpr FedRoll deal{100, 50};

class MonsterTest : public GameTest {
  protected:
    static void fillBoard(enc::Code code) {
        for (int col = 0; col < columnCount; ++col)
            for (int row = 0; row < rowCount; ++row) board(col, row) = code;
    }

    static int countOf(enc::Code code) {
        int found = 0;
        for (int col = 0; col < columnCount; ++col)
            for (int row = 0; row < rowCount; ++row) found += board(col, row) == code ? 1 : 0;
        return found;
    }

    // The tile that stands there in the frame, by a pixel that neither beams nor texts reach.
    static bool shows(int col, int row, int tileNumber) {
        const Point at = boardGrid.corner(col, row);
        return pixelAt(at.x + 3, at.y + 3) == flatColour(tileNumber);
    }
};

class GhostTest : public MonsterTest {
  protected:
    static int meetGhost(int col, int row, FedRoll side) {
        board(col, row) = enc::Ghost;
        rolls({side});
        return Encounter(col, row, 0);
    }
};

class FilthTest : public MonsterTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        count(health) = 30;
    }

    // Met with a damage of 4; the acid then takes one health.
    static int meetFilth(int col, int row) {
        board(col, row) = enc::OozingFilth;
        rolls({{3, 1}, noToughness, {9, 9}, {100, 34}});
        return Encounter(col, row, 0);
    }
};

class DemonTest : public MonsterTest {
  protected:
    static void pick(int col, int row) { rolls({{7, col + 1}, {7, row + 1}}); }
};

}  // namespace

TEST_F(GhostTest, FleesUpThenToTheSidesInRolledOrderThenDown) {
    const FedRoll sides[] = {leftFirst, rightFirst};
    for (const FedRoll side : sides) {
        const int nearer = side.value > 50 ? 2 : 4;
        const Point order[] = {{3, 2}, {nearer, 3}, {6 - nearer, 3}, {3, 4}};
        fillBoard(enc::Empty);
        for (const Point to : order) {
            EXPECT_EQ(meetGhost(3, 3, side), 1);
            EXPECT_EQ(board(to.x, to.y), enc::Ghost);
            EXPECT_EQ(board(3, 3), enc::Empty);
            board(to.x, to.y) = enc::Door;
        }
        EXPECT_EQ(countOf(enc::Ghost), 0);
    }
    EXPECT_EQ(column(3).drawn, 0);
    EXPECT_EQ(count(health), 0);
}

TEST_F(GhostTest, StaysOnTheBoardAndBeforeTheEndOfItsNeighbours) {
    column(1).drawn = 60;
    board(0, 5) = enc::Door;
    count(health) = 9;
    board(0, 6) = enc::Ghost;
    rolls({rightFirst, {2, 2}, noToughness, deal});
    EXPECT_EQ(Encounter(0, 6, 0), 1);
    EXPECT_EQ(count(health), 7);
    EXPECT_EQ(board(1, 6), enc::Empty);
    EXPECT_EQ(column(0).drawn, 1);
}

TEST_F(GhostTest, TakesTheTreasureAwayAndNothingThatBlocks) {
    fillBoard(enc::TheEnd);
    board(2, 6) = enc::Chest;
    EXPECT_EQ(meetGhost(3, 6, rightFirst), 1);
    EXPECT_EQ(board(2, 6), enc::Ghost);
    EXPECT_EQ(TotalStats(), 0);
    EXPECT_EQ(column(2).drawn + column(3).drawn, 0);
}

TEST_F(GhostTest, TheNeighboursColumnIsRedrawnBeforeItsOwn) {
    board(2, 0) = enc::HypnoEye;
    board(3, 0) = enc::HypnoEye;
    board(3, 5) = enc::Door;
    board(3, 6) = enc::Ghost;
    rolls({leftFirst, {30, 1}, {30, 30}});
    EXPECT_EQ(Encounter(3, 6, 0), 1);
    EXPECT_EQ(board(2, 6), enc::Ghost);
    const int bottom = boardGrid.area().y2;
    EXPECT_EQ(pixelAt(boardGrid.corner(2, 0).x + 2, bottom), colour::brown);
    EXPECT_EQ(pixelAt(boardGrid.corner(3, 0).x + 30, bottom), colour::brown);
    EXPECT_EQ(pixelAt(boardGrid.corner(2, 6).x + 28, bottom - 16), flatColour(tile::cellar));
}

TEST_F(FilthTest, SpreadsToEveryNeighbourAndLosesWhatWasThere) {
    board(3, 2) = enc::Chest;
    board(2, 3) = enc::Door;
    EXPECT_EQ(meetFilth(3, 3), 1);
    EXPECT_EQ(countOf(enc::OozingFilth), 4);
    EXPECT_EQ(board(3, 3), enc::Empty);
    for (const Point at : {Point{3, 2}, {2, 3}, {4, 3}, {3, 4}}) {
        EXPECT_EQ(board(at.x, at.y), enc::OozingFilth);
        EXPECT_TRUE(shows(at.x, at.y, tile::oozingFilth));
    }
    EXPECT_EQ(count(health), 25);
    EXPECT_EQ(TotalStats(), 25);
}

TEST_F(FilthTest, InTheBottomRowItBecomesThreeAndHoldsTheColumn) {
    EXPECT_EQ(meetFilth(3, 6), 1);
    EXPECT_EQ(countOf(enc::OozingFilth), 3);
    EXPECT_EQ(board(3, 6), enc::Empty);
    EXPECT_EQ(column(3).drawn, 0);
    EXPECT_EQ(meetFilth(0, 6), 1);
    EXPECT_EQ(board(0, 5), enc::OozingFilth);
    EXPECT_EQ(board(1, 6), enc::OozingFilth);
}

TEST_F(FilthTest, WithoutRoomItIsClearedLikeAnyMonster) {
    fillBoard(enc::Darkness);
    column(4).drawn = 60;
    board(4, 6) = enc::Empty;
    board(3, 6) = enc::OozingFilth;
    rolls({{3, 1}, noToughness, {9, 9}, {100, 34}, deal});
    EXPECT_EQ(Encounter(3, 6, 0), 1);
    EXPECT_EQ(countOf(enc::OozingFilth), 0);
    EXPECT_EQ(column(3).drawn, 1);
}

TEST_F(FilthTest, AcidIgnoresProtectionAndItsRefusalDoesNotMatter) {
    level(thiefProtection) = 95;
    EXPECT_EQ(meetFilth(3, 6), 1);
    EXPECT_EQ(count(health), 25);

    count(health) = 4;
    board(6, 6) = enc::OozingFilth;
    rolls({{3, 1}, noToughness});
    EXPECT_EQ(Encounter(6, 6, 0), 1);
    EXPECT_EQ(newestMessage(), "Need total stats above 0.");
    EXPECT_FALSE(ui.messagePosted);
    EXPECT_EQ(board(5, 6), enc::OozingFilth);
}

TEST_F(FilthTest, ItsNeighbourColumnsAreRedrawnLeftThenRightThenItsOwn) {
    for (const int col : {2, 3, 4}) board(col, 0) = enc::HypnoEye;
    board(3, 6) = enc::OozingFilth;
    rolls({{3, 1}, noToughness, {9, 9}, {100, 34}, {30, 1}, {30, 15}, {30, 30}});
    EXPECT_EQ(Encounter(3, 6, 0), 1);
    const int bottom = boardGrid.area().y2;
    EXPECT_EQ(pixelAt(boardGrid.corner(2, 0).x + 2, bottom), colour::brown);
    EXPECT_EQ(pixelAt(boardGrid.corner(4, 0).x + 16, bottom), colour::brown);
    EXPECT_EQ(pixelAt(boardGrid.corner(3, 0).x + 30, bottom), colour::brown);
}

TEST_F(FilthTest, TheSpreadingIsFlashedOnTheEmptiedCell) {
    prefs.GameSpeed = normalSpeed;
    bool flashed = true;
    script::feedWhenPausing([&flashed](InputQueue&) {
        flashed = flashed && shows(3, 6, tile::spreading);
        return true;
    });
    EXPECT_EQ(meetFilth(3, 6), 1);
    EXPECT_EQ(script::sleptMilliseconds(), 200);
    EXPECT_TRUE(flashed);
    EXPECT_TRUE(shows(3, 6, tile::empty));
}

TEST_F(DemonTest, TeleportsToTheFirstPickThatItMayEnter) {
    fillBoard(enc::Door);
    column(1).drawn = 60;
    board(1, 1) = enc::Empty;
    board(5, 2) = enc::LockedChest;
    board(3, 6) = enc::Demon;
    pick(3, 6);
    pick(1, 1);
    pick(2, 5);
    pick(5, 2);
    EXPECT_EQ(Encounter(3, 6, 0), 1);
    EXPECT_EQ(board(5, 2), enc::Demon);
    EXPECT_EQ(board(3, 6), enc::Empty);
    EXPECT_EQ(column(3).drawn, 0);
    EXPECT_TRUE(shows(5, 2, tile::demon));
    EXPECT_TRUE(shows(3, 6, tile::empty));
}

TEST_F(DemonTest, AfterSixPicksTheBoardIsScannedRowByRowFromTheLast) {
    struct Scan {
        Point last;
        Point free;
        Point farther;
    };
    const Scan scans[] = {{{5, 2}, {6, 2}, {5, 3}},
                          {{5, 2}, {0, 3}, {4, 2}},
                          {{6, 6}, {0, 0}, {5, 6}},
                          {{5, 2}, {4, 2}, {4, 2}}};
    for (const Scan& scan : scans) {
        fillBoard(enc::Door);
        board(scan.free.x, scan.free.y) = enc::Gold;
        board(scan.farther.x, scan.farther.y) = enc::Gold;
        board(3, 6) = enc::Demon;
        for (int i = 0; i < 5; ++i) pick(1, 1);
        pick(scan.last.x, scan.last.y);
        EXPECT_EQ(Encounter(3, 6, 0), 1);
        EXPECT_EQ(board(scan.free.x, scan.free.y), enc::Demon);
        EXPECT_EQ(countOf(enc::Demon), 1);
    }
}

TEST_F(DemonTest, WithoutAPlaceToGoItIsFought) {
    fillBoard(enc::Door);
    board(3, 6) = enc::Demon;
    count(health) = 1;
    for (int i = 0; i < 6; ++i) pick(i, i);
    rolls({{10, 7}, noToughness, deal});
    EXPECT_EQ(Encounter(3, 6, 0), 1);
    EXPECT_EQ(count(health), -11);
    EXPECT_EQ(countOf(enc::Demon), 0);
    EXPECT_EQ(column(3).drawn, 1);
}

TEST_F(DemonTest, OnlyWhatCanBeSeenIsWipedAway) {
    prefs.GameSpeed = normalSpeed;
    board(3, 6) = enc::Demon;
    pick(5, 5);
    EXPECT_EQ(Encounter(3, 6, 0), 1);
    EXPECT_EQ(script::sleptMilliseconds(), 620);

    board(5, 2) = enc::HypnoEye;
    board(3, 6) = enc::Demon;
    pick(5, 6);
    EXPECT_EQ(Encounter(3, 6, 0), 1);
    EXPECT_EQ(script::sleptMilliseconds(), 620 + 310);
    EXPECT_FALSE(shows(5, 6, tile::demon)) << "a hidden arrival is not shown";
}

}  // namespace gloomdeck
