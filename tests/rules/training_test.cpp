#include "rules/training.h"

#include <array>

#include "rules/training_screen.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/tiles.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

Point plus(int row) { return {32, 64 + 35 * row}; }

bool messageStands(const std::string& text) { return textStandsAt(176, 18, text, colour::text); }

}  // namespace

class TrainingTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        allow(tile::goldBoth);
    }

    static void allow(int goldTile) { itemType(gold).tile = goldTile; }

    static void play(Script script) {
        startScript(script.key("q"));
        TrainingScreen();
        finishScript();
    }
};

TEST_F(TrainingTest, TheGoldPictureDecidesWhichRowsThereAre) {
    struct Case {
        int goldTile;
        bool training, trading;
    };
    for (const Case& c : {Case{tile::goldBoth, true, true}, Case{tile::goldTraining, true, false},
                          Case{tile::goldTrading, false, true}, Case{tile::gold, false, false}}) {
        SCOPED_TRACE(c.goldTile);
        allow(c.goldTile);
        count(gold) = 1000;
        game.skills = {};
        count(keys) = 0;
        Script script;
        play(script.click(plus(0)).click(plus(6)).check([&] {
            EXPECT_EQ(textStandsAt(90, 52, "50 gold for 5% Lockpicking", colour::text), c.training);
            EXPECT_EQ(textStandsAt(90, 264, "10 gold for 1", colour::text), c.trading);
            EXPECT_EQ(messageStands("You can't trade or train here"), !c.training && !c.trading);
        }));
        EXPECT_EQ(level(lockpicking), c.training ? 5 : 0);
        EXPECT_EQ(count(keys), c.trading ? 1 : 0);
        EXPECT_EQ(count(gold), 1000 - (c.training ? 50 : 0) - (c.trading ? 10 : 0));
    }
}

TEST_F(TrainingTest, EveryRowSellsItsOwnGoodsForExactlyItsPrice) {
    const std::array<int, trainingRows> prices{50, 15, 60, 30, 45, 20, 10, 10, 10};
    for (int row = 0; row < trainingRows; ++row) {
        SCOPED_TRACE(row);
        const int price = prices[static_cast<std::size_t>(row)];
        game.inventory = {};
        game.skills = {};
        count(gold) = price - 1;
        count(health) = -7;
        Script script;
        play(script.click(plus(row))
                 .check([&] {
                     EXPECT_TRUE(messageStands(" You need " + std::to_string(price) + " Gold."));
                     EXPECT_EQ(count(gold), price - 1);
                     EXPECT_EQ(TotalStats(), price - 1 - 7);
                     count(gold) = price;
                 })
                 .click(plus(row))
                 .check([] { EXPECT_TRUE(textStandsAt(117, 18, "0 ", colour::text)); }));
        EXPECT_EQ(count(gold), 0);
        for (int skill = 0; skill < skillCount; ++skill) EXPECT_EQ(level(skill), skill == row ? 5 : 0);
        EXPECT_EQ(count(keys), row == 6 ? 1 : 0);
        EXPECT_EQ(count(torches), row == 7 ? 1 : 0);
        EXPECT_EQ(count(health), row == 8 ? -2 : -7);
    }
    EXPECT_EQ(itemType(health).highlightTurns, -1);
    EXPECT_EQ(itemType(health).turnChange, 0);
    EXPECT_EQ(skillType(lockpicking).highlightTurns, 0);
}

TEST_F(TrainingTest, ASkillIsTrainedUpToNinetyFiveAndNotAtAllAboveNinety) {
    count(gold) = 1000;
    game.skills = {90, 91, 94, 95, 85, 0};
    Script script;
    for (int row = 0; row < skillCount; ++row) script.click(plus(row)).click(plus(row));
    play(script.check([] {
        EXPECT_TRUE(textStandsAt(90, 66, " (Currently 95%)", colour::yellow));
        EXPECT_EQ(pixelAt(32, 64), colour::panel) << "the button is gone";
    }));
    EXPECT_EQ(game.skills, (std::array<std::int32_t, 7>{95, 91, 94, 95, 95, 10}));
    EXPECT_EQ(count(gold), 1000 - 50 - 2 * 45 - 2 * 20);
    game.skills = {};
    play(Script().click(plus(0)));
    EXPECT_EQ(level(lockpicking), 5) << "a later visit shows the button again";
}

}  // namespace gloomdeck
