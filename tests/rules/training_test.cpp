#include "rules/tiles.h"
#include "rules/training/training_screen.h"
#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

// A visit that clicks those rows.
void visit(const std::vector<int>& rows) {
    Script script;
    for (const int row : rows) script.button(id::training + row);
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
        visit({row});
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
    for (const auto& [picture, trained, bought] : {std::array{tile::goldBoth, 5, 1},
                                                   {tile::goldTraining, 5, 0},
                                                   {tile::goldTrading, 0, 1},
                                                   {tile::gold, 0, 0}}) {
        itemType(gold).tile = picture;
        level(lockpicking) = count(keys) = 0;
        count(gold) = 100;
        visit({lockpicking, skillCount});
        EXPECT_EQ(std::pair(level(lockpicking), count(keys)), std::pair(trained, bought)) << picture;
    }
}

}  // namespace gloomdeck
