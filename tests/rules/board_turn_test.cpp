// Changes of the hero, the upkeep of a turn, and the end of a board with its score.
#include "rules/board_turn.h"

#include <limits>

#include "platform/frame.h"
#include "platform/palette.h"
#include "prefs/score.h"
#include "rules/hero.h"
#include "rules/show.h"
#include "shell/widgets/places.h"
#include "tests/rules/rule_test.h"

namespace gloomdeck {

using BoardTurnTest = RuleTest;

TEST_F(BoardTurnTest, AnItemIsMarkedByItsNetChangeOfTheTurn) {
    const auto box = [] { return pixelAt(statsGrid.x + 34, statsGrid.corner(0, gold).y); };
    AddItem(gold, 3);
    AddItem(gold, -3);
    EXPECT_EQ(box(), colour::yellow);
    AddItem(gold, -1);
    EXPECT_EQ(box(), colour::loss);
    itemType(gold).highlightTurns = 1;
    AddItem(gold, 0);
    EXPECT_EQ(itemType(gold).highlightTurns, 1) << "no change marks nothing anew";
}

TEST_F(BoardTurnTest, ATickTakesATurnOffActivePowersOnly) {
    game.powers = {1, 3, -2, 7};
    PowersTick();
    EXPECT_EQ(game.powers, (std::array<std::int32_t, 4>{0, 2, -2, 7}));
}

TEST_F(BoardTurnTest, ToughnessHealsBelowATenthOfItself) {
    constexpr int unrolled = 0;
    // clang-format off
    for (const auto& [skill, before, roll, after] : {
        std::tuple{30, 2, 30, 3}, {30, 2, 31, 2}, {30, 3, unrolled, 3}, {25, 2, 25, 3}, {20, 2, unrolled, 2},
                  {95, 9, 95, 10}, {95, 10, unrolled, 10}, {0, -5, unrolled, -5}}) {
        // clang-format on
        level(toughness) = skill;
        count(health) = before;
        if (roll != unrolled) rolls({{100, roll}});
        BoardTurn();
        EXPECT_EQ(count(health), after) << skill;
    }
}

TEST_F(BoardTurnTest, TheTurnThatFindsTheBoardClearedEndsItOnce) {
    for (int col = 0; col < columnCount; ++col) column(col).finished = 1;
    BoardTurn();
    EXPECT_EQ(prefs.scenarioOver, 1);
    EXPECT_EQ(game.turns, 1);
    turnsLeft(stasis) = 5;
    level(toughness) = 95;
    ShowMessage("Newest", 0);
    const std::string before = gameBytes();
    const Image frame = screen();
    BoardTurn();
    EXPECT_EQ(gameBytes(), before);
    EXPECT_EQ(newestMessage(), "Newest");
    EXPECT_EQ(screen().pixels, frame.pixels);
}

TEST_F(BoardTurnTest, TheScoreIsTheTotalPerThousandTurnsWithHalvesToEven) {
    constexpr int most = std::numeric_limits<std::int32_t>::max();
    // clang-format off
    for (const auto& [owned, turns, score] : {
        std::tuple{7, 20, 350}, {1, 3, 333}, {2, 3, 667}, {1, 2000, 0}, {3, 2000, 2}, {5, 2000, 2},
                  {9, 0, 0},    {9, -4, 0},  {-3, 10, 0}, {most, 1, most}}) {
        // clang-format on
        count(health) = owned;
        game.turns = turns;
        EXPECT_EQ(ComputeScore(), score) << owned << " in " << turns;
    }
}

}  // namespace gloomdeck
