// The wipes of single cells, and what is left of a cleared one.
#include "rules/cell_view.h"

#include "rules/clear_cell.h"
#include "tests/rules/rule_test.h"

namespace gloomdeck {

namespace {

Colour inCell(int x, int y) { return pixelAt(boardGrid.corner(2, 3).x + x, boardGrid.corner(2, 3).y + y); }

class CellViewTest : public RuleTest {
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

}  // namespace

TEST_F(CellViewTest, TheRevealUncoversOneRowMoreAtEveryStep) {
    drawTileInCell(tile::cave, 2, 3);
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
    drawTileInCell(tile::demon, 2, 3);
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

TEST_F(CellViewTest, ACaveTurnsIntoItsContentAndIsNeverEmpty) {
    prefs.GameSpeed = speedCount - 1;
    int roll = 0;
    for (const enc::Code content :
         {enc::Skeleton, enc::Skeleton, enc::Ghost, enc::Ghost, enc::Chest, enc::Backpack, enc::Scroll,
          enc::Meat, enc::Chest, enc::Empty, enc::SkeletonKing, enc::OozingFilth, enc::Demon,
          enc::LockedChest, enc::Gold}) {
        board(1, 4) = enc::Cave;
        rolls({{15, ++roll}});
        EXPECT_FALSE(ClearCell(1, 4));
        EXPECT_EQ(board(1, 4), content) << roll;
    }
}

TEST_F(CellViewTest, OnlyTheKingLeavesSomethingAndItIsRevealedUnlessHidden) {
    board(1, 3) = enc::HypnoEye;
    for (int code = 0; code < enc::count; ++code) {
        if (code == enc::Cave) continue;
        board(1, 4) = code;
        EXPECT_EQ(ClearCell(1, 4), code != enc::TheEnd && code != enc::SkeletonKing) << code;
        EXPECT_EQ(board(1, 4), code == enc::TheEnd         ? code
                               : code == enc::SkeletonKing ? enc::Gold
                                                           : enc::Empty);
    }
    board(1, 3) = enc::Empty;
    for (const enc::Code unrevealed : {enc::TheEnd, enc::Door}) {
        board(1, 4) = unrevealed;
        ClearCell(1, 4);
    }
    EXPECT_EQ(script::sleptMilliseconds(), 0);
    board(1, 4) = enc::SkeletonKing;
    ClearCell(1, 4);
    EXPECT_EQ(script::sleptMilliseconds(), 31 * 30);
}

}  // namespace gloomdeck
