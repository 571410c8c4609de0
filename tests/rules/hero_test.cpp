// Changes of the hero: the record, the highlights and what a sight that comes or goes redraws.
#include "rules/hero.h"

#include "shell/board_view.h"
#include "tests/rules/rule_test.h"

namespace gloomdeck {

namespace {

class HeroTest : public RuleTest {};

class SightTest : public RuleTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        board(1, 2) = board(4, 5) = enc::HypnoEye;
        board(6, 6) = enc::HypnoEye;  // hides nothing, so that no refresh is for it
        board(1, 4) = enc::Gold;
    }

    static bool goldIsShown() { return shows({1, 4}, tile::gold); }
};

}  // namespace

TEST_F(HeroTest, ARowIsColouredByTheNetChangeOfTheTurn) {
    AddItem(gold, 3);
    AddItem(gold, -3);
    EXPECT_EQ(countBox(gold), colour::yellow);
    AddItem(gold, -1);
    EXPECT_EQ(countBox(gold), colour::loss);
    EXPECT_EQ(count(gold), -1);
    EXPECT_EQ(itemType(gold).highlightTurns, 2);
    itemType(gold).highlightTurns = 1;
    AddItem(gold, 0);
    EXPECT_EQ(countBox(gold), colour::slate);
    EXPECT_EQ(itemType(gold).highlightTurns, 1);
    EXPECT_EQ(itemType(gold).turnChange, -1);
}

TEST_F(HeroTest, ASkillIsClampedAndColouredByItsChange) {
    level(toughness) = 90;
    ChangeSkill(toughness, 10);
    EXPECT_EQ(level(toughness), 95);
    EXPECT_EQ(skillBox(health), colour::yellow);
    ChangeSkill(toughness, -1);
    EXPECT_EQ(level(toughness), 94);
    EXPECT_EQ(skillBox(health), colour::loss);
    EXPECT_EQ(skillType(toughness).highlightTurns, 2);
    skillType(toughness).highlightTurns = 1;
    ChangeSkill(toughness, 0);
    EXPECT_EQ(skillBox(health), colour::slate);
    EXPECT_EQ(skillType(toughness).highlightTurns, 1);
}

TEST_F(HeroTest, ATickTakesATurnOffActivePowersOnly) {
    game.powers = {0, 3, -2, 7};
    PowersTick();
    EXPECT_EQ(game.powers, (std::array<std::int32_t, 4>{0, 2, -2, 7}));
}

TEST_F(SightTest, ShowsAndHidesAtOnceColumnByColumnFromTheLeft) {
    rolls({{30, 1}, {30, 1}, {30, 1}});
    drawBoard();
    EXPECT_FALSE(goldIsShown());
    ChangePower(magicSight, 2);
    EXPECT_TRUE(goldIsShown());
    PowersTick();
    EXPECT_TRUE(goldIsShown());
    rolls({{30, 1}, {30, 30}});
    PowersTick();
    EXPECT_FALSE(goldIsShown());
    EXPECT_TRUE(beamEnds(1, 2) && beamEnds(4, 30));
}

TEST_F(SightTest, OtherChangesLeaveTheBoardAlone) {
    ChangePower(stasis, 4);
    ChangePower(magicSight, 4, 0, 1);
    ChangePower(magicSight, 4);
    ChangePower(magicSight, 0, 1, 1);
    EXPECT_EQ(turnsLeft(magicSight), 8);
    EXPECT_FALSE(goldIsShown()) << "the board has not been drawn at all";
    ChangePower(magicSight, 0, 1);
    EXPECT_TRUE(goldIsShown());
}

}  // namespace gloomdeck
