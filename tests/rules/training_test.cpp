#include "platform/palette.h"
#include "rules/training_screen.h"
#include "shell/layout.h"
#include "shell/tiles.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

// A visit that clicks those rows; the screen's message at its end must be that, or blank.
void visit(const std::vector<int>& rows, const std::string& message = "        ") {
    Script script;
    for (const int row : rows) script.button(id::training + row);
    script.check([=] { EXPECT_TRUE(textStandsAt(176, 18, message, colour::text)) << message; });
    startScript(script.key("q"));
    TrainingScreen();
    finishScript();
}

}  // namespace

using TrainingTest = GameTest;

TEST_F(TrainingTest, EveryRowSellsItsOwnGoodsForExactlyItsPrice) {
    itemType(gold).tile = tile::goldBoth;
    count(health) = -7;
    int row = 0;
    for (const auto& [goods, price, amount] :
         {std::tuple{&level(lockpicking), 50, 5}, std::tuple{&level(thiefProtection), 15, 5},
          std::tuple{&level(shieldBoost), 60, 5}, std::tuple{&level(lightningBoost), 30, 5},
          std::tuple{&level(sunBoost), 45, 5}, std::tuple{&level(toughness), 20, 5},
          std::tuple{&count(keys), 10, 1}, std::tuple{&count(torches), 10, 1},
          std::tuple{&count(health), 10, 5}}) {
        count(gold) = price - 1;
        const std::string before = gameBytes();
        visit({row}, " You need " + std::to_string(price) + " Gold.");
        EXPECT_EQ(gameBytes(), before) << row;
        ++count(gold);
        visit({row++});
        EXPECT_EQ(count(gold), 0);
        *goods -= amount;
        count(gold) = price - 1;
        EXPECT_EQ(gameBytes(), before) << "something else has changed";
    }
    EXPECT_EQ(itemType(health).highlightTurns, -1);
}

TEST_F(TrainingTest, TheScenarioSaysWhetherTrainingAndTradingAreForSale) {
    struct Permission {
        int goldTile, skill, bought;
        std::string message;
    };
    for (const Permission& may :
         {Permission{tile::goldBoth, 5, 1, ""}, Permission{tile::goldTraining, 5, 0, ""},
          Permission{tile::goldTrading, 0, 1, ""},
          Permission{tile::gold, 0, 0, "You can't trade or train here"}}) {
        itemType(gold).tile = may.goldTile;
        level(lockpicking) = count(keys) = 0;
        count(gold) = 100;
        visit({lockpicking, skillCount}, may.message);
        EXPECT_EQ(level(lockpicking), may.skill) << may.goldTile;
        EXPECT_EQ(count(keys), may.bought) << may.goldTile;
    }
}

TEST_F(TrainingTest, ASkillIsTrainedUpToNinetyFiveAndNotAtAllAboveNinety) {
    itemType(gold).tile = tile::goldTraining;
    count(gold) = 1000;
    game.skills = {90, 91, 94, 95, 85, 0};
    visit({0, 0, 1, 2, 3, 4, 4, 5, 5});
    EXPECT_EQ(game.skills, (std::array<std::int32_t, 7>{95, 91, 94, 95, 95, 10}));
    EXPECT_EQ(count(gold), 1000 - 50 - 2 * 45 - 2 * 20);
    game.skills = {};
    visit({0, 6});
    EXPECT_EQ(level(lockpicking), 5) << "a later visit shows the button again";
    EXPECT_EQ(count(keys), 0) << "there is no trading";
}

}  // namespace gloomdeck
