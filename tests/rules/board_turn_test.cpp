// The upkeep of a turn, the day display and the end of a board.
#include "rules/board_turn.h"

#include <cstring>

#include "platform/draw.h"
#include "rules/day_display.h"
#include "rules/hero.h"
#include "tests/rules/rule_test.h"

namespace gloomdeck {

namespace {

class BoardTurnTest : public RuleTest {};

}  // namespace

TEST_F(BoardTurnTest, TheBarScrollsUnlessTheActionLeftItsMessage) {
    ShowMessage("Kept", 1);
    BoardTurn();
    EXPECT_EQ(newestMessage(), "Kept");
    EXPECT_TRUE(ui.messagePosted);
    ui.messagePosted = false;
    BoardTurn();
    EXPECT_EQ(newestMessage(), "");
    EXPECT_EQ(messageBar.lines[1], "Kept");
    EXPECT_FALSE(ui.messagePosted);
}

TEST_F(BoardTurnTest, ToughnessHealsBelowATenthOfItself) {
    struct Case {
        int skill;
        int health;
        int roll;  // 0: none is drawn
        int healed;
    };
    for (const Case c : {Case{30, 2, 30, 1},
                         {30, 2, 31, 0},
                         {30, 3, 0, 0},
                         {25, 2, 25, 1},
                         {20, 2, 0, 0},
                         {95, 9, 95, 1},
                         {95, 10, 0, 0},
                         {0, -5, 0, 0}}) {
        level(toughness) = c.skill;
        count(health) = c.health;
        if (c.roll != 0) rolls({{100, c.roll}});
        BoardTurn();
        EXPECT_EQ(count(health), c.health + c.healed) << c.skill;
        EXPECT_EQ(leftoverRolls(), 0);
    }
}

TEST_F(BoardTurnTest, AHighlightLastsForTheNextTurnTooAndCountsEachTurnAnew) {
    AddItem(gold, 4);
    ChangeSkill(sunBoost, 2);
    BoardTurn();
    EXPECT_EQ(countBox(gold), colour::yellow);
    EXPECT_EQ(skillBox(suns), colour::yellow);
    BoardTurn();
    EXPECT_EQ(countBox(gold), colour::slate);
    EXPECT_EQ(skillBox(suns), colour::slate);
    EXPECT_TRUE(textStandsAt(288, statsGrid.corner(0, gold).y + 12, "4 ", colour::text));
    AddItem(gold, 9);
    BoardTurn();
    AddItem(gold, -1);
    EXPECT_EQ(countBox(gold), colour::loss);
}

TEST_F(BoardTurnTest, HealingIsAChangeOfTheTurnThatEnds) {
    level(toughness) = 95;
    rolls({{100, 1}});
    BoardTurn();
    EXPECT_EQ(countBox(health), colour::yellow);
    EXPECT_EQ(itemType(health).turnChange, 0);
    count(health) = 50;
    BoardTurn();
    EXPECT_EQ(countBox(health), colour::slate);
}

TEST_F(BoardTurnTest, PowersAndTimePassAfterTheHealing) {
    level(toughness) = 50;
    turnsLeft(magicSight) = 1;
    turnsLeft(deflection) = 3;
    board(0, 0) = enc::HypnoEye;
    rolls({{100, 50}, {30, 30}});
    BoardTurn();
    EXPECT_EQ(count(health), 1);
    EXPECT_EQ(turnsLeft(magicSight), 0);
    EXPECT_EQ(turnsLeft(deflection), 2);
    EXPECT_EQ(game.turns, 1);
    EXPECT_EQ(beamEnds(0, 30), true);
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
    const GameState before = game;
    fillBox(0, 0, 407, 487, colour::red);
    BoardTurn();
    EXPECT_EQ(std::memcmp(&before, &game, sizeof game), 0);
    EXPECT_EQ(newestMessage(), "Newest");
    EXPECT_EQ(pixelAt(16, 29), colour::red);
}

TEST_F(BoardTurnTest, FourTurnsMakeADay) {
    struct Time {
        int turns;
        int leftTile;
        const char* day;
        int textLeft;
    };
    for (const Time time : {Time{0, tile::dawn, "1", 337},
                            {5, tile::noon, "2", 337},
                            {35, tile::night, "9", 337},
                            {36, tile::dawn, "10", 333},
                            {394, tile::dusk, "99", 333},
                            {396, tile::dawn, "100", 330},
                            {400, tile::dawn, "101", 330}}) {
        game.turns = time.turns;
        DrawDayDisplay();
        EXPECT_EQ(pixelAt(310, 12), flatColour(time.leftTile));
        EXPECT_EQ(pixelAt(369, 12), flatColour(time.leftTile + 1));
        EXPECT_TRUE(textStandsAt(time.textLeft, 27, time.day, colour::text)) << time.turns;
        EXPECT_EQ(pixelAt(308, 7), colour::panel);
        EXPECT_EQ(pixelAt(371, 38), colour::panel);
    }
}

}  // namespace gloomdeck
