// Changes of the hero: the record, and what they are marked with.
#include "rules/hero.h"

#include "shell/palette.h"
#include "shell/places.h"
#include "tests/rules/rule_test.h"

namespace gloomdeck {

using HeroTest = RuleTest;

TEST_F(HeroTest, AnItemIsMarkedByItsNetChangeOfTheTurn) {
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

TEST_F(HeroTest, ATickTakesATurnOffActivePowersOnly) {
    game.powers = {1, 3, -2, 7};
    PowersTick();
    EXPECT_EQ(game.powers, (Powers{0, 2, -2, 7}));
}

}  // namespace gloomdeck
