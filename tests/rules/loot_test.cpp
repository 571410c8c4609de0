// What containers and books give, and in which order they are rolled.
#include "rules/loot.h"

#include <array>
#include <vector>

#include "rules/encounter.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

class LootTest : public GameTest {};

constexpr FedRoll deal{100, 50};

}  // namespace

TEST_F(LootTest, ABackpackHoldsTorchesOrKeysOrBoth) {
    struct Find {
        std::vector<FedRoll> drawn;
        int keysFound;
        int torchesFound;
    };
    const std::vector<Find> finds{
        {{{100, 50}, {100, 50}}, 0, 1},
        {{{100, 50}, {100, 51}}, 1, 0},
        {{{100, 51}, {100, 50}}, 0, 3},
        {{{100, 70}, {100, 51}}, 3, 0},
        {{{100, 71}}, 1, 1},
    };
    for (const Find& find : finds) {
        game.inventory = {};
        rolls(find.drawn);
        takeBackpackContents();
        EXPECT_EQ(count(keys), find.keysFound);
        EXPECT_EQ(count(torches), find.torchesFound);
        EXPECT_EQ(leftoverRolls(), 0);
    }
}

TEST_F(LootTest, AScrollGivesTheSpellOfItsRoll) {
    constexpr std::array spells{shields, lightningBolts, lightningBolts, suns, bombs, shields, suns};
    for (int roll = 1; roll <= 7; ++roll) {
        game.inventory = {};
        rolls({{7, roll}});
        takeScrollContents();
        EXPECT_EQ(count(spells.at(static_cast<std::size_t>(roll - 1))), 1) << roll;
        EXPECT_EQ(TotalStats(), 1);
    }
}

TEST_F(LootTest, AChestRollsGoldBackpackSpellAndHealth) {
    board(0, 6) = enc::Chest;
    rolls({{10, 9}, {100, 60}, {100, 90}, {7, 5}, {6, 2}, deal});
    EXPECT_EQ(Encounter(0, 6, 0), 1);
    EXPECT_EQ(game.inventory, (std::array<std::int32_t, 10>{3, 0, 9, 0, 0, 0, 1, 0, 2}));
}

TEST_F(LootTest, ALockedChestTakesItsKeyBeforeItGivesAny) {
    board(0, 6) = enc::LockedChest;
    count(keys) = 1;
    rolls({{100, 5}, {10, 9}, {10, 4}, {100, 80}, {7, 3}, {6, 6}, {6, 5}, {6, 1}, deal});
    EXPECT_EQ(Encounter(0, 6, 0), 1);
    EXPECT_EQ(game.inventory, (std::array<std::int32_t, 10>{1, 1, 13, 0, 1, 0, 0, 0, 12}));
}

TEST_F(LootTest, ABookAlwaysDrawsBothBonusesAndNamesTheSkill) {
    struct Lesson {
        std::vector<FedRoll> drawn;
        Skill skill;
        int gain;
        const char* says;
    };
    const std::vector<Lesson> lessons{
        {{{6, 1}, {100, 34}, {100, 17}}, lockpicking, 1, "+1% Lockpicking"},
        {{{6, 6}, {100, 33}, {100, 17}}, toughness, 2, "+2% Toughness"},
        {{{6, 2}, {100, 34}, {100, 16}}, thiefProtection, 2, "+2% Thief protection"},
        {{{6, 5}, {100, 1}, {100, 1}}, sunBoost, 3, "+3% Sun boost"},
    };
    for (const Lesson& lesson : lessons) {
        ui.messagePosted = false;
        rolls(lesson.drawn);
        readBook();
        EXPECT_EQ(level(lesson.skill), lesson.gain);
        EXPECT_EQ(newestMessage(), lesson.says);
        EXPECT_TRUE(ui.messagePosted);
    }
    level(toughness) = 94;
    rolls({{6, 6}, {100, 1}, {100, 1}});
    readBook();
    EXPECT_EQ(level(toughness), 95);
}

}  // namespace gloomdeck
