// The hero's rows and boxes on the frame.
#include "rules/stats_column.h"

#include "platform/draw.h"
#include "rules/hero.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "shell/tiles.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

class StatsColumnTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        fillBox(0, 0, 407, 487, colour::red);
    }

    // The box is filled at its four corners and nothing has been drawn right outside them.
    static void expectBox(Rect box, Colour fill) {
        for (const int x : {box.x1, box.x2})
            for (const int y : {box.y1, box.y2}) EXPECT_EQ(pixelAt(x, y), fill) << x << ", " << y;
        for (const int x : {box.x1 - 1, box.x2 + 1}) EXPECT_EQ(pixelAt(x, box.y1), colour::red) << x;
        for (const int y : {box.y1 - 1, box.y2 + 1}) EXPECT_EQ(pixelAt(box.x1, y), colour::red) << y;
    }

    static int blackBarPixels(int x, int y) {
        int length = 0;
        while (length < 32 && pixelAt(x + 31 - length, y) == colour::black) ++length;
        return length;
    }
};

}  // namespace

TEST_F(StatsColumnTest, ACountStandsInItsBox) {
    count(health) = -3;
    drawItemCount(health, 0);
    expectBox({278, 296, 325, 327}, colour::slate);
    EXPECT_TRUE(textStandsAt(288, 308, "-3 ", colour::text));

    count(keys) = 12;
    drawItemCount(keys, 1);
    expectBox({278, 40, 325, 71}, colour::yellow);
    EXPECT_TRUE(textStandsAt(288, 52, "12 ", colour::black));

    itemType(gold).turnChange = -1;
    drawItemCount(gold, 1);
    expectBox({278, 104, 325, 135}, colour::loss);
    EXPECT_TRUE(textStandsAt(288, 116, "0 ", colour::text));
}

TEST_F(StatsColumnTest, ASkillStandsBesideItsItem) {
    level(thiefProtection) = 5;
    drawSkill(thiefProtection, 5);
    expectBox({326, 104, 397, 135}, colour::yellow);
    EXPECT_EQ(pixelAt(328, 104), colour::yellow) << "the icon is see-through";
    EXPECT_EQ(pixelAt(328, 106), flatColour(tile::thiefProtection));
    EXPECT_EQ(pixelAt(359, 106), flatColour(tile::thiefProtection));
    EXPECT_TRUE(textStandsAt(366, 116, "5%", colour::black));
    level(toughness) = -7;
    drawSkill(toughness, -2);
    expectBox({326, 296, 397, 327}, colour::loss);
    EXPECT_EQ(pixelAt(344, 312), colour::loss) << "nothing is shown of a skill of nothing";
    EXPECT_TRUE(textStandsAt(366, 308, "   ", colour::text));
}

TEST_F(StatsColumnTest, APowersBarShrinksToTheRightByTwoPixelsATurn) {
    for (const auto& [turns, length] : {std::pair{1, 3}, {3, 7}, {15, 31}, {16, 32}, {20, 32}}) {
        turnsLeft(stasis) = turns;
        drawPower(stasis, true);
        EXPECT_EQ(blackBarPixels(72, 306), length) << turns;
        EXPECT_EQ(blackBarPixels(72, 310), length) << turns;
        EXPECT_TRUE(length == 32 || pixelAt(72, 308) == colour::slate);
        EXPECT_TRUE(textStandsAt(106, 292, std::to_string(turns), colour::text)) << turns;
    }
    EXPECT_EQ(pixelAt(72, 305), flatColour(tile::stasis));
    EXPECT_EQ(pixelAt(71, 308), colour::red);
    EXPECT_EQ(pixelAt(104, 308), colour::red);
    EXPECT_EQ(pixelAt(137, 302), colour::panel);
    EXPECT_EQ(pixelAt(138, 302), colour::red);
    EXPECT_EQ(pixelAt(106, 303), colour::red);
}

TEST_F(StatsColumnTest, APowersIconIsDrawnOnlyWhenItBeginsOrIsForced) {
    turnsLeft(deflection) = 4;
    ChangePower(deflection, 1);
    EXPECT_EQ(pixelAt(150, 290), colour::red);
    ChangePower(deflection, 0, 1);
    EXPECT_EQ(pixelAt(150, 290), flatColour(tile::deflection));
    ChangePower(stasis, 1);
    EXPECT_EQ(pixelAt(80, 290), flatColour(tile::stasis));
}

TEST_F(StatsColumnTest, APowerThatIsOverLeavesItsWholeBoxPlain) {
    turnsLeft(magicSight) = 1;
    drawPower(magicSight, true);
    PowersTick();
    for (int y = 280; y <= 311; ++y)
        for (int x = 8; x <= 71; ++x) ASSERT_EQ(pixelAt(x, y), colour::panel) << x << ", " << y;
    EXPECT_EQ(pixelAt(7, 280), colour::red);
    EXPECT_EQ(pixelAt(72, 280), colour::red);
    EXPECT_EQ(pixelAt(8, 312), colour::red);
}

}  // namespace gloomdeck
