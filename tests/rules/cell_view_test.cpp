// The animations of single cells, and what is left of a cleared one.
#include "rules/cell_view.h"

#include "rules/clear_cell.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "shell/tiles.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr Point corner = boardGrid.corner(2, 3);

Colour inCell(int x, int y) { return pixelAt(corner.x + x, corner.y + y); }

class CellViewTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        prefs.GameSpeed = 2;
        script::feedWhenPausing([this](InputQueue&) {
            if (look) look(++pauses);
            return true;
        });
    }

    std::function<void(int)> look;  // called at every pause with its number, from 1
    int pauses = 0;
};

class ClearCellTest : public GameTest {};

}  // namespace

TEST_F(CellViewTest, TheRevealUncoversOneRowMoreAtEveryStep) {
    board(2, 3) = enc::Cave;
    drawCellTile(2, 3);
    board(2, 3) = enc::Gold;
    look = [](int pause) {
        EXPECT_EQ(inCell(16, pause - 1), flatColour(tile::gold)) << pause;
        EXPECT_EQ(inCell(16, pause), flatColour(tile::cave)) << pause;
    };
    revealWipe(2, 3, 30);
    EXPECT_EQ(pauses, 31);
    EXPECT_EQ(script::sleptMilliseconds(), 31 * 30);
}

TEST_F(CellViewTest, TheVanishingRunsAWhiteLineDownToTheLastRowButOne) {
    board(2, 3) = enc::Demon;
    drawCellTile(2, 3);
    look = [](int pause) {
        EXPECT_EQ(inCell(0, pause - 1), colour::white);
        EXPECT_EQ(inCell(31, pause - 1), colour::white);
        EXPECT_EQ(inCell(16, pause), flatColour(tile::demon));
        EXPECT_TRUE(pause == 1 || inCell(16, pause - 2) == flatColour(tile::cellar));
    };
    vanishWipe(2, 3);
    EXPECT_EQ(pauses, 31);
    EXPECT_EQ(script::sleptMilliseconds(), 310);
    EXPECT_EQ(inCell(16, 30), flatColour(tile::cellar));
    EXPECT_EQ(inCell(16, 31), flatColour(tile::demon));
}

TEST_F(CellViewTest, AHiddenCellStaysAsItIsWhenRedrawn) {
    board(2, 1) = enc::HypnoEye;
    board(2, 3) = enc::Gold;
    redrawCell(2, 3);
    EXPECT_NE(inCell(16, 16), flatColour(tile::gold));
    turnsLeft(magicSight) = 1;
    redrawCell(2, 3);
    EXPECT_EQ(inCell(16, 16), flatColour(tile::gold));
}

TEST_F(ClearCellTest, ACaveTurnsIntoItsContentAndIsNeverEmpty) {
    const enc::Code contents[] = {enc::Skeleton, enc::Skeleton,    enc::Ghost,        enc::Ghost,
                                  enc::Chest,    enc::Backpack,    enc::Scroll,       enc::Meat,
                                  enc::Chest,    enc::Empty,       enc::SkeletonKing, enc::OozingFilth,
                                  enc::Demon,    enc::LockedChest, enc::Gold};
    int roll = 0;
    for (const enc::Code content : contents) {
        board(1, 4) = enc::Cave;
        rolls({{15, ++roll}});
        EXPECT_FALSE(ClearCell(1, 4));
        EXPECT_EQ(board(1, 4), content) << roll;
    }
}

TEST_F(ClearCellTest, EveryOtherTypeEndsEmptyUnlessItLeavesSomething) {
    for (int code = 0; code < enc::count; ++code) {
        if (code == enc::Cave) continue;
        board(1, 4) = code;
        const bool emptied = ClearCell(1, 4);
        EXPECT_EQ(emptied, code != enc::TheEnd && code != enc::SkeletonKing) << code;
        EXPECT_EQ(board(1, 4) == enc::Empty, emptied) << code;
    }
}

TEST_F(ClearCellTest, RemainsAreRevealedUnlessHidden) {
    prefs.GameSpeed = 2;
    for (const enc::Code code : {enc::TheEnd, enc::Door}) {
        board(1, 4) = code;
        ClearCell(1, 4);
        EXPECT_EQ(script::sleptMilliseconds(), 0);
    }
    board(1, 4) = enc::SkeletonKing;
    board(1, 3) = enc::HypnoEye;
    EXPECT_FALSE(ClearCell(1, 4));
    EXPECT_EQ(script::sleptMilliseconds(), 0);
    board(1, 3) = enc::Empty;
    board(1, 4) = enc::SkeletonKing;
    EXPECT_FALSE(ClearCell(1, 4));
    EXPECT_EQ(script::sleptMilliseconds(), 31 * 30);
}

}  // namespace gloomdeck
