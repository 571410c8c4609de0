// The upkeep of a turn, the day display, and the end of a board with its score.
#include "rules/board_turn.h"

#include <limits>

#include "platform/draw.h"
#include "prefs/score.h"
#include "rules/hero.h"
#include "rules/show.h"
#include "shell/play/board_end.h"
#include "tests/rules/rule_test.h"

namespace gloomdeck {

using BoardTurnTest = RuleTest;

TEST_F(BoardTurnTest, TheBarScrollsUnlessTheActionLeftItsMessage) {
    ShowMessage("Kept", 1);
    BoardTurn();
    EXPECT_EQ(messagesShown(), "Kept|");
    ui.messagePosted = false;
    BoardTurn();
    EXPECT_EQ(messagesShown(), "|Kept");
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

TEST_F(BoardTurnTest, AHighlightLastsForTheNextTurnTooAndEachTurnCountsAnewOnceItsHealingIsCounted) {
    AddItem(gold, 4);
    ChangeSkill(sunBoost, 2);
    level(toughness) = 95;
    rolls({{100, 1}});
    BoardTurn();
    for (const Colour box : {countBox(gold), skillBox(suns), countBox(health)})
        EXPECT_EQ(box, colour::yellow);
    EXPECT_EQ(itemType(health).turnChange, 0);
    count(health) = 50;
    BoardTurn();
    for (const Colour box : {countBox(gold), skillBox(suns), countBox(health)}) EXPECT_EQ(box, colour::slate);
    AddItem(gold, 9);
    BoardTurn();
    AddItem(gold, -1);
    EXPECT_EQ(countBox(gold), colour::loss);
}

TEST_F(BoardTurnTest, PowersAndTimePassAfterTheHealing) {
    level(toughness) = 50;
    game.powers = {1, 0, 3};
    board(0, 0) = enc::HypnoEye;
    rolls({{100, 50}, {30, 30}});
    BoardTurn();
    EXPECT_EQ(count(health), 1);
    EXPECT_EQ(game.powers, (Powers{0, 0, 2}));
    EXPECT_EQ(game.turns, 1);
    EXPECT_TRUE(beamEnds(0, 30));
}

TEST_F(BoardTurnTest, TheTurnThatFindsTheBoardClearedEndsItOnce) {
    for (int col = 0; col < columnCount; ++col) column(col).finished = 1;
    BoardTurn();
    EXPECT_EQ(prefs.scenarioOver, 1);
    EXPECT_EQ(game.turns, 1);
    EXPECT_TRUE(textStandsAt(16, 29, "Score: 0", colour::text));
    turnsLeft(stasis) = 5;
    level(toughness) = 95;
    ShowMessage("Newest", 0);
    const std::string before = gameBytes();
    fillBox(0, 0, 407, 487, colour::red);
    BoardTurn();
    EXPECT_EQ(gameBytes(), before);
    EXPECT_EQ(newestMessage(), "Newest");
    EXPECT_EQ(pixelAt(16, 29), colour::red);
}

TEST_F(BoardTurnTest, FourTurnsMakeADayAndItsNumberStandsCentred) {
    // clang-format off
    for (const auto& [turns, leftTile, day, textLeft] : {
        std::tuple{0, tile::dawn,  "1", 337}, {  5, tile::noon,  "2", 337}, { 35, tile::night,  "9", 337},
                 {36, tile::dawn, "10", 333}, {394, tile::dusk, "99", 333}, {396, tile::dawn, "100", 330}}) {
        // clang-format on
        game.turns = turns;
        DrawDayDisplay();
        EXPECT_EQ(pixelAt(310, 12), flatColour(leftTile)) << turns;
        EXPECT_TRUE(textStandsAt(textLeft, 27, day, colour::text)) << turns;
    }
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

TEST_F(BoardTurnTest, TheScoreCarriesItsStanding) {
    count(gold) = 7;
    game.turns = 20;
    for (const auto& [standing, line] :
         {std::pair{-1, "Score: 350 "}, {0, "Score: 350 - Best! "}, {-2, "Score: 350 - Above avg! "}}) {
        game.scoreStanding = standing;
        ShowScoreLine();
        EXPECT_TRUE(textStandsAt(16, 29, line, colour::text)) << line;
    }
}

}  // namespace gloomdeck
