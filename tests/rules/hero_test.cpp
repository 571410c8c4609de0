// Changes of the hero: the record, and what they are marked with.
#include "rules/hero.h"

#include "tests/rules/rule_test.h"

namespace gloomdeck {

using HeroTest = RuleTest;

TEST_F(HeroTest, AnItemIsMarkedByItsNetChangeOfTheTurn) {
    AddItem(gold, 3);
    AddItem(gold, -3);
    EXPECT_EQ(countBox(gold), colour::yellow);
    AddItem(gold, -1);
    EXPECT_EQ(countBox(gold), colour::loss);
    itemType(gold).highlightTurns = 1;
    AddItem(gold, 0);
    EXPECT_EQ(itemType(gold).highlightTurns, 1) << "no change marks nothing anew";
}

TEST_F(HeroTest, ATickTakesATurnOffActivePowersOnly) {
    game.powers = {1, 3, -2, 7};
    PowersTick();
    EXPECT_EQ(game.powers, (Powers{0, 2, -2, 7}));
}

TEST_F(HeroTest, SightShowsAndHidesColumnByColumnFromTheLeftOnceWhenItBeginsAndWhenItEnds) {
    for (const int col : {1, 4}) board(col, 5) = enc::HypnoEye;
    board(6, 6) = enc::HypnoEye;  // hides nothing: no refresh is for it
    turnsLeft(magicSight) = 1;
    rolls({{30, 1}, {30, 30}});
    PowersTick();
    EXPECT_TRUE(beamEnds(1, 2) && beamEnds(4, 30));
    ChangePower(magicSight, 1);
    EXPECT_TRUE(shows({1, 6}, tile::empty));
}

}  // namespace gloomdeck
