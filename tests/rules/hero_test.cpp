// Changes of the hero: the record, its boxes on the frame, and what a sight that comes or goes redraws.
#include "rules/hero.h"

#include "tests/rules/rule_test.h"

namespace gloomdeck {

using HeroTest = RuleTest;

TEST_F(HeroTest, AnItemIsColouredByItsNetChangeOfTheTurn) {
    AddItem(gold, 3);
    AddItem(gold, -3);
    EXPECT_EQ(countBox(gold), colour::yellow);
    EXPECT_TRUE(textStandsAt(288, 116, "0 ", colour::black));
    AddItem(gold, -1);
    EXPECT_EQ(countBox(gold), colour::loss);
    EXPECT_TRUE(textStandsAt(288, 116, "-1 ", colour::text));
    itemType(gold).highlightTurns = 1;
    AddItem(gold, 0);
    EXPECT_EQ(countBox(gold), colour::slate);
    EXPECT_EQ(itemType(gold).highlightTurns, 1);
}

TEST_F(HeroTest, ASkillIsClampedAndColouredByItsChange) {
    level(toughness) = 90;
    ChangeSkill(toughness, 10);
    EXPECT_EQ(level(toughness), 95);
    EXPECT_EQ(skillBox(health), colour::yellow);
    EXPECT_TRUE(textStandsAt(366, 308, "95%", colour::black));
    skillType(toughness).highlightTurns = 1;
    ChangeSkill(toughness, 0);
    EXPECT_EQ(skillBox(health), colour::slate);
    EXPECT_EQ(skillType(toughness).highlightTurns, 1);
    ChangeSkill(toughness, -97);
    EXPECT_EQ(skillBox(health), colour::loss);
    EXPECT_EQ(pixelAt(344, 312), colour::loss) << "nothing is shown of a skill of nothing";
}

TEST_F(HeroTest, ATickTakesATurnOffActivePowersAndClearsTheBoxOfOneThatIsOver) {
    game.powers = {1, 3, -2, 7};
    PowersTick();
    EXPECT_EQ(game.powers, (Powers{0, 2, -2, 7}));
    EXPECT_TRUE(pixelAt(8, 280) == colour::panel && pixelAt(71, 311) == colour::panel);
}

TEST_F(HeroTest, APowersIconIsDrawnOnlyWhenItBeginsOrIsForcedAndItsBarIsFullAtSixteenTurns) {
    turnsLeft(deflection) = 4;
    ChangePower(deflection, 11);
    EXPECT_NE(pixelAt(150, 290), flatColour(tile::deflection));
    EXPECT_TRUE(pixelAt(136, 308) == colour::slate && pixelAt(137, 308) == colour::black);
    ChangePower(deflection, 5, 1);
    EXPECT_EQ(pixelAt(150, 290), flatColour(tile::deflection));
    EXPECT_EQ(pixelAt(136, 308), colour::black);
    ChangePower(stasis, 1);
    EXPECT_EQ(pixelAt(80, 290), flatColour(tile::stasis));
}

TEST_F(HeroTest, SightShowsAndHidesAtOnceColumnByColumnFromTheLeftAndNothingElseDoes) {
    const auto goldIsShown = [] { return shows({1, 4}, tile::gold); };
    board(1, 2) = board(4, 5) = board(6, 6) = enc::HypnoEye;  // the last hides nothing: no refresh is for it
    board(1, 4) = enc::Gold;
    ChangePower(stasis, 4);
    ChangePower(magicSight, 1, 0, 1);
    ChangePower(magicSight, 1);
    ChangePower(magicSight, 0, 1, 1);
    EXPECT_FALSE(goldIsShown()) << "the board has not been drawn at all";
    ChangePower(magicSight, 0, 1);
    EXPECT_TRUE(goldIsShown());
    PowersTick();
    EXPECT_TRUE(goldIsShown());
    rolls({{30, 1}, {30, 30}});
    PowersTick();
    EXPECT_FALSE(goldIsShown());
    EXPECT_TRUE(beamEnds(1, 2) && beamEnds(4, 30));
    ChangePower(magicSight, 1);
    EXPECT_TRUE(goldIsShown());
}

}  // namespace gloomdeck
