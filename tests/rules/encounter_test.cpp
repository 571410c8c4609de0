// Meeting tiles: what each costs, gives and leaves.
#include "rules/encounter.h"

#include "tests/rules/rule_test.h"

namespace gloomdeck {

using EncounterTest = RuleTest;

TEST_F(EncounterTest, ARefusalSpendsNothingAndSaysWhy) {
    // clang-format off
    const std::vector<std::tuple<enc::Code, Inventory, std::vector<FedRoll>, const char*>> refusals{
        {enc::DoubleDoor,   {1},    {{100, 1}},               "2 Keys needed."},
        {enc::LockedChest,  {},     {{100, 1}},               "1 Key needed."},
        {enc::Darkness,     {},     {},                       "1 Torch needed."},
        {enc::Cave,         {0, 1}, {},                       "2 Torches needed."},
        {enc::Thief,        {},     {},                       "Need total stats above 0."},
        {enc::Skeleton,     {},     {{6, 6}},                 "Need health above 0."},
        {enc::OozingFilth,  {},     {{3, 3}},                 "Need health above 0."},
        {enc::SkeletonKing, {},     {{6, 1}, {6, 1}, {6, 1}}, "Need health above 0."},
        {enc::HypnoEye,     {},     {{6, 1}, {6, 1}},         "Need health above 0."},
        {enc::Ghost,        {},     {{100, 50}, {2, 2}},      "Need health above 0."},
        {enc::Demon,        {},     {{10, 1}},                "Need health above 0."},
    };
    // clang-format on
    for (const auto& [code, owned, drawn, why] : refusals) {
        turnsLeft(stasis) = code == enc::Ghost || code == enc::Demon ? 1 : 0;
        game.inventory = owned;
        board(3, 6) = code;
        const std::string before = gameBytes();
        EXPECT_EQ(meet(code, drawn), 0);
        EXPECT_EQ(gameBytes(), before) << why;
        EXPECT_EQ(newestMessage(), why);
    }
    EXPECT_FALSE(ui.messagePosted);
    EXPECT_EQ(meet(enc::Trap, {{20, 20}, noToughness, doorDealt}), 1);
    EXPECT_EQ(count(health), -20) << "a trap asks for no health";
    turnsLeft(deflection) = 1;
    EXPECT_EQ(meet(enc::Trap, {{20, 1}, doorDealt}), 1);
    EXPECT_EQ(newestMessage(), "Deflection stops all damage.");
    EXPECT_EQ(meet(enc::Trap, {{20, 2}, noToughness, doorDealt}), 1);
    EXPECT_EQ(count(health), -21);
}

TEST_F(EncounterTest, WhatIsPaidForChangesTheHeroByWhatItRollsInOrder) {
    // clang-format off
    const std::vector<std::tuple<enc::Code, std::vector<FedRoll>, Inventory>> meetings{
        {enc::Gold,     {{10, 10}},                     {1, 0, 10, 0, 0, 0, 0, 0, 1}},
        {enc::Fruit,    {{6, 5}},                       {1, 0,  0, 0, 0, 0, 0, 0, 6}},
        {enc::Meat,     {{6, 6}, {6, 1}, {6, 4}},       {1, 0,  0, 0, 0, 0, 0, 0, 12}},
        {enc::Flower,   {{6, 6}, {2, 1}},               {1, 0,  0, 0, 0, 0, 0, 0, 2}},
        {enc::Backpack, {{100, 50}, {100, 50}},         {1, 1,  0, 0, 0, 0, 0, 0, 1}},
        {enc::Backpack, {{100, 70}, {100, 51}},         {4, 0,  0, 0, 0, 0, 0, 0, 1}},
        {enc::Backpack, {{100, 71}},                    {2, 1,  0, 0, 0, 0, 0, 0, 1}},
        {enc::Chest,    {{10, 9}, {100, 60}, {100, 90}, {7, 5}, {6, 2}}, {4, 0,  9, 0, 0, 0, 1, 0, 3}},
        {enc::LockedChest, {{100, 5}, {10, 9}, {10, 4}, {100, 80}, {7, 3}, {6, 6}, {6, 5}, {6, 1}},
                                                        {1, 1, 13, 0, 1, 0, 0, 0, 13}},
        {enc::Skeleton,    {{6, 4},          noToughness}, {1, 0, 0, 0, 0, 0, 0, 0, -3}},
        {enc::Ghost,       {{100, 1}, {2, 2}, noToughness}, {1, 0, 0, 0, 0, 0, 0, 0, -1}},
        {enc::OozingFilth, {{3, 3},          noToughness}, {1, 0, 0, 0, 0, 0, 0, 0, -5}},
        {enc::HypnoEye,    {{6, 6}, {6, 1},  noToughness}, {1, 0, 0, 0, 0, 0, 0, 0, -8}},
        {enc::Demon,       {{10, 10},        noToughness}, {1, 0, 0, 0, 0, 0, 0, 0, -14}},
        {enc::MasterThief, {},                             {1, 0, 0, 0, 0, 0, 0, 0, 1}},
    };
    // clang-format on
    turnsLeft(stasis) = 1;
    for (auto [code, drawn, owned] : meetings) {
        game.inventory = {1, 0, 0, 0, 0, 0, 0, 0, 1};
        drawn.push_back(doorDealt);
        EXPECT_EQ(meet(code, drawn), 1);
        EXPECT_EQ(game.inventory, owned) << encounterType(code).name;
        EXPECT_TRUE(advanced());
    }
    EXPECT_EQ(turnsLeft(magicSight), 8);
}

}  // namespace gloomdeck
