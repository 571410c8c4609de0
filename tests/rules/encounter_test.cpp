// Meeting tiles: what each costs, gives and leaves.
#include "rules/encounter.h"

#include <cstring>

#include "rules/loot.h"
#include "tests/rules/rule_test.h"

namespace gloomdeck {

namespace {

class EncounterTest : public RuleTest {};

using Inventory = std::array<std::int32_t, 10>;

}  // namespace

TEST_F(EncounterTest, ARefusalSpendsNothingAndSaysWhy) {
    struct Refusal {
        enc::Code code;
        std::vector<FedRoll> drawn;
        const char* why;
    };
    const std::vector<Refusal> refusals{
        {enc::Door, {{100, 1}}, "1 Key needed."},
        {enc::DoubleDoor, {{100, 1}}, "2 Keys needed."},
        {enc::LockedChest, {{100, 1}}, "1 Key needed."},
        {enc::Darkness, {}, "1 Torch needed."},
        {enc::Cave, {}, "2 Torches needed."},
        {enc::Thief, {}, "Need total stats above 0."},
        {enc::MasterThief, {}, "Need total stats above 0."},
        {enc::Skeleton, {{6, 6}}, "Need health above 0."},
        {enc::OozingFilth, {{3, 3}}, "Need health above 0."},
        {enc::SkeletonKing, {{6, 1}, {6, 1}, {6, 1}}, "Need health above 0."},
        {enc::HypnoEye, {{6, 1}, {6, 1}}, "Need health above 0."},
        {enc::Ghost, {{100, 50}, {2, 2}}, "Need health above 0."},
        {enc::Demon, {{10, 1}}, "Need health above 0."},
    };
    for (const Refusal& refusal : refusals) {
        turnsLeft(stasis) = refusal.code == enc::Ghost || refusal.code == enc::Demon ? 1 : 0;
        board(3, 6) = refusal.code;
        const GameState before = game;
        EXPECT_EQ(meet(refusal.code, refusal.drawn), 0);
        EXPECT_EQ(std::memcmp(&before, &game, sizeof game), 0) << refusal.why;
        EXPECT_EQ(newestMessage(), refusal.why);
    }
    EXPECT_FALSE(ui.messagePosted);
}

TEST_F(EncounterTest, WhatIsOnlyTakenGivesWhatItRollsInOrder) {
    struct Gain {
        enc::Code code;
        std::vector<FedRoll> drawn;
        Inventory owned;  // by a hero who had one key
    };
    const std::vector<Gain> gains{
        {enc::Gold, {{10, 10}}, {1, 0, 10}},
        {enc::Fruit, {{6, 5}}, {1, 0, 0, 0, 0, 0, 0, 0, 5}},
        {enc::Meat, {{6, 6}, {6, 1}, {6, 4}}, {1, 0, 0, 0, 0, 0, 0, 0, 11}},
        {enc::Backpack, {{100, 50}, {100, 50}}, {1, 1}},
        {enc::Backpack, {{100, 50}, {100, 51}}, {2, 0}},
        {enc::Backpack, {{100, 51}, {100, 50}}, {1, 3}},
        {enc::Backpack, {{100, 70}, {100, 51}}, {4, 0}},
        {enc::Backpack, {{100, 71}}, {2, 1}},
        {enc::Chest, {{10, 9}, {100, 60}, {100, 90}, {7, 5}, {6, 2}}, {4, 0, 9, 0, 0, 0, 1, 0, 2}},
        {enc::LockedChest,
         {{100, 5}, {10, 9}, {10, 4}, {100, 80}, {7, 3}, {6, 6}, {6, 5}, {6, 1}},
         {1, 1, 13, 0, 1, 0, 0, 0, 12}},
        {enc::Flower, {{6, 6}, {2, 1}}, {1, 0, 0, 0, 0, 0, 0, 0, 1}},
    };
    for (Gain gain : gains) {
        game.inventory = {1};
        gain.drawn.push_back(doorDealt);
        EXPECT_EQ(meet(gain.code, gain.drawn), 1);
        EXPECT_EQ(game.inventory, gain.owned) << encounterType(gain.code).name;
        EXPECT_TRUE(advanced());
    }
    EXPECT_EQ(turnsLeft(magicSight), 8);
    EXPECT_FALSE(ui.messagePosted);
}

TEST_F(EncounterTest, AScrollGivesTheSpellOfItsRoll) {
    int roll = 0;
    for (const Item spell : {shields, lightningBolts, lightningBolts, suns, bombs, shields, suns}) {
        game.inventory = {};
        rolls({{7, ++roll}});
        takeScrollContents();
        EXPECT_TRUE(count(spell) == 1 && TotalStats() == 1) << roll;
    }
}

TEST_F(EncounterTest, ABookAlwaysDrawsBothBonusesAndNamesTheSkill) {
    level(sunBoost) = 94;
    EXPECT_EQ(meet(enc::Book, {{6, 1}, {100, 34}, {100, 17}, doorDealt}), 1);
    EXPECT_EQ(newestMessage(), "+1% Lockpicking");
    EXPECT_EQ(meet(enc::Book, {{6, 6}, {100, 33}, {100, 17}, doorDealt}), 1);
    EXPECT_EQ(newestMessage(), "+2% Toughness");
    EXPECT_EQ(meet(enc::Book, {{6, 5}, {100, 33}, {100, 16}, doorDealt}), 1);
    EXPECT_EQ(newestMessage(), "+3% Sun boost");
    EXPECT_EQ(game.skills, (std::array<std::int32_t, 7>{1, 0, 0, 0, 95, 2, 0}));
    EXPECT_TRUE(ui.messagePosted);
}

TEST_F(EncounterTest, FightsTakeTheirDiceAndBonus) {
    struct Fight {
        enc::Code code;
        std::vector<FedRoll> drawn;
        int damage;
    };
    const std::vector<Fight> fights{{enc::Skeleton, {{6, 4}}, 4},         {enc::Trap, {{20, 17}}, 17},
                                    {enc::Ghost, {{100, 1}, {2, 2}}, 2},  {enc::OozingFilth, {{3, 3}}, 6},
                                    {enc::HypnoEye, {{6, 6}, {6, 1}}, 9}, {enc::Demon, {{10, 10}}, 15}};
    turnsLeft(stasis) = 1;
    for (Fight fight : fights) {
        count(health) = 1;
        fight.drawn.insert(fight.drawn.end(), {noToughness, doorDealt});
        EXPECT_EQ(meet(fight.code, fight.drawn), 1);
        EXPECT_EQ(count(health), 1 - fight.damage) << encounterType(fight.code).name;
        EXPECT_TRUE(advanced());
    }
}

TEST_F(EncounterTest, ATrapHitsWithoutHealthAndDeflectionMayStopIt) {
    count(health) = -4;
    EXPECT_EQ(meet(enc::Trap, {{20, 20}, noToughness, doorDealt}), 1);
    EXPECT_EQ(count(health), -24);
    turnsLeft(deflection) = 1;
    level(toughness) = 95;
    EXPECT_EQ(meet(enc::Trap, {{20, 1}, doorDealt}), 1);
    EXPECT_EQ(count(health), -24);
    EXPECT_EQ(newestMessage(), "Deflection stops all damage.");
}

TEST_F(EncounterTest, TheKingsGoldAndTheEndHoldTheColumn) {
    count(health) = 20;
    EXPECT_EQ(meet(enc::SkeletonKing, {{6, 2}, {6, 3}, {6, 1}, noToughness}), 1);
    EXPECT_EQ(count(health), 14);
    EXPECT_EQ(board(3, 6), enc::Gold);
    EXPECT_EQ(column(3).drawn, 0);
    EXPECT_EQ(meet(enc::TheEnd, {}), 1);
    EXPECT_EQ(column(3).finished, 1U);
    EXPECT_EQ(board(3, 6), enc::TheEnd);
    EXPECT_EQ(column(3).drawn, 0);
}

TEST_F(EncounterTest, FromAfarOnlyTheCellItselfChanges) {
    for (const int row : {2, 6}) {
        fillBoard(enc::Door);
        board(3, row) = enc::Gold;
        rolls({{10, 3}});
        EXPECT_EQ(Encounter(3, row, 1), 1);
        EXPECT_EQ(board(3, row), enc::Empty);
        EXPECT_EQ(countOf(enc::Door), 48);
        EXPECT_EQ(column(3).drawn, 0);
    }
}

TEST_F(EncounterTest, AHiddenTileIsMetAndTheNewOneDealtBeforeTheEyesBeam) {
    board(3, 2) = enc::HypnoEye;
    EXPECT_EQ(meet(enc::Gold, {{10, 3}, doorDealt, {30, 29}}), 1);
    EXPECT_EQ(count(gold), 3);
    EXPECT_EQ(board(3, 3), enc::HypnoEye);
    EXPECT_TRUE(advanced());
    EXPECT_TRUE(shows({3, 0}, tile::door));
    EXPECT_TRUE(shows({3, 6}, tile::cellar));
}

TEST_F(EncounterTest, DarknessAndCaveTakeTheirTorchesUnlessSightSparesThem) {
    for (const int torchesSpent : {0, 3}) {
        turnsLeft(magicSight) = torchesSpent == 0 ? 1 : 0;
        count(torches) = 3;
        EXPECT_EQ(meet(enc::Darkness, {doorDealt}), 1);
        EXPECT_TRUE(advanced());
        EXPECT_EQ(meet(enc::Cave, {{15, 10}}), 1);
        EXPECT_EQ(count(torches), 3 - torchesSpent);
        EXPECT_EQ(board(3, 6), enc::Empty);
        EXPECT_EQ(column(3).drawn, 0) << "an empty cave does not let the column advance";
    }
}

TEST_F(EncounterTest, ThievesStealUnlessStasisHoldsThem) {
    level(thiefProtection) = 40;
    game.inventory = {0, 0, 5, 0, 0, 1};
    EXPECT_EQ(meet(enc::Thief, {{100, 41}, {9, 3}, {100, 34}, doorDealt}), 1);
    EXPECT_EQ(meet(enc::MasterThief, {{100, 41}, {9, 3}, {100, 33}, {100, 40}, {100, 41}, {9, 6}, doorDealt}),
              1);
    EXPECT_EQ(game.inventory, (Inventory{0, 0, 2, 0, 0, 0}));
    turnsLeft(stasis) = 1;
    EXPECT_EQ(meet(enc::Thief, {doorDealt}), 1);
    EXPECT_EQ(meet(enc::MasterThief, {doorDealt}), 1);
    EXPECT_TRUE(advanced());
    EXPECT_EQ(count(gold), 2);
}

TEST_F(EncounterTest, AMasterThiefKeepsWhatItTookBeforeItsRefusal) {
    count(keys) = 1;
    EXPECT_EQ(meet(enc::MasterThief, {{100, 1}, {9, 1}}), 0);
    EXPECT_EQ(count(keys), 0);
    EXPECT_EQ(board(3, 6), enc::MasterThief);
    EXPECT_EQ(messageBar.lines[1], "Need total stats above 0.") << "the third theft is tried too";
}

}  // namespace gloomdeck
