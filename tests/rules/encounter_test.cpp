// Meeting tiles: what each costs, gives and leaves.
#include "rules/encounter.h"

#include <cstring>
#include <vector>

#include "shell/places.h"
#include "shell/tiles.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr FedRoll doorIsDealt{100, 12};  // in a Dungeon column
constexpr FedRoll noToughness{100, 100};

class EncounterTest : public GameTest {
  protected:
    static int meet(enc::Code code) {
        board(3, 6) = code;
        return Encounter(3, 6, 0);
    }

    static int meetAndAdvance(enc::Code code) {
        board(3, 5) = enc::Book;
        const int result = meet(code);
        EXPECT_EQ(column(3).drawn, 1);
        EXPECT_EQ(board(3, 6), enc::Book);
        EXPECT_EQ(board(3, 0), enc::Door);
        return result;
    }
};

struct Refusal {
    enc::Code code;
    std::vector<FedRoll> drawn;
    const char* why;
};

}  // namespace

TEST_F(EncounterTest, ARefusalSpendsNothingAndSaysWhy) {
    const std::vector<Refusal> refusals{
        {enc::Door, {{100, 1}}, "1 Key needed."},
        {enc::DoubleDoor, {{100, 1}}, "2 Keys needed."},
        {enc::LockedChest, {{100, 1}}, "1 Key needed."},
        {enc::Darkness, {}, "1 Torch needed."},
        {enc::Cave, {}, "2 Torches needed."},
        {enc::Skeleton, {{6, 6}}, "Need health above 0."},
        {enc::Ghost, {{100, 50}, {2, 2}}, "Need health above 0."},
        {enc::Thief, {}, "Need total stats above 0."},
        {enc::OozingFilth, {{3, 3}}, "Need health above 0."},
        {enc::SkeletonKing, {{6, 1}, {6, 1}, {6, 1}}, "Need health above 0."},
        {enc::Demon, {{10, 1}}, "Need health above 0."},
        {enc::MasterThief, {}, "Need total stats above 0."},
        {enc::HypnoEye, {{6, 1}, {6, 1}}, "Need health above 0."},
    };
    for (const Refusal& refusal : refusals) {
        SCOPED_TRACE(encounterType(refusal.code).name);
        const bool moves = refusal.code == enc::Ghost || refusal.code == enc::Demon;
        turnsLeft(stasis) = moves ? 9 : 0;
        board(3, 6) = refusal.code;
        const GameState before = game;
        rolls(refusal.drawn);
        EXPECT_EQ(Encounter(3, 6, 0), 0);
        EXPECT_EQ(std::memcmp(&before, &game, sizeof game), 0);
        EXPECT_EQ(newestMessage(), refusal.why);
        EXPECT_EQ(leftoverRolls(), 0);
    }
    EXPECT_FALSE(ui.messagePosted);
}

TEST_F(EncounterTest, WhatIsOnlyTakenGivesItsRollAndLetsTheColumnAdvance) {
    struct Gain {
        enc::Code code;
        Item item;
        std::vector<FedRoll> drawn;
        int gained;
    };
    const std::vector<Gain> gains{
        {enc::Gold, gold, {{10, 10}}, 10},
        {enc::Fruit, health, {{6, 5}}, 5},
        {enc::Meat, health, {{6, 6}, {6, 1}, {6, 4}}, 11},
        {enc::Flower, health, {{6, 6}, {2, 1}}, 1},
    };
    for (const Gain& g : gains) {
        SCOPED_TRACE(encounterType(g.code).name);
        game.inventory = {};
        column(3).drawn = 0;
        rolls(g.drawn);
        rolls({doorIsDealt});
        EXPECT_EQ(meetAndAdvance(g.code), 1);
        EXPECT_EQ(count(g.item), g.gained);
        EXPECT_EQ(TotalStats(), g.gained);
    }
    EXPECT_EQ(turnsLeft(magicSight), 8);
    EXPECT_FALSE(ui.messagePosted);
}

TEST_F(EncounterTest, FightsTakeTheirDiceAndBonus) {
    struct Fight {
        enc::Code code;
        std::vector<FedRoll> drawn;
        int damage;
    };
    const std::vector<Fight> fights{
        {enc::Skeleton, {{6, 4}, noToughness, doorIsDealt}, 4},
        {enc::Trap, {{20, 17}, noToughness, doorIsDealt}, 17},
        {enc::Ghost, {{100, 1}, {2, 2}, noToughness, doorIsDealt}, 2},
        {enc::OozingFilth, {{3, 3}, noToughness, doorIsDealt}, 6},
        {enc::Demon, {{10, 10}, noToughness, doorIsDealt}, 15},
        {enc::HypnoEye, {{6, 6}, {6, 1}, noToughness, doorIsDealt}, 9},
    };
    turnsLeft(stasis) = 1;
    for (const Fight& fight : fights) {
        SCOPED_TRACE(encounterType(fight.code).name);
        count(health) = 1;
        column(3).drawn = 0;
        rolls(fight.drawn);
        EXPECT_EQ(meetAndAdvance(fight.code), 1);
        EXPECT_EQ(count(health), 1 - fight.damage);
    }
}

TEST_F(EncounterTest, ATrapHitsWithoutHealthAndDeflectionMayStopIt) {
    count(health) = -4;
    rolls({{20, 20}, noToughness, doorIsDealt});
    EXPECT_EQ(meetAndAdvance(enc::Trap), 1);
    EXPECT_EQ(count(health), -24);

    turnsLeft(deflection) = 1;
    level(toughness) = 95;
    column(3).drawn = 0;
    rolls({{20, 1}, doorIsDealt});
    EXPECT_EQ(meetAndAdvance(enc::Trap), 1);
    EXPECT_EQ(count(health), -24);
    EXPECT_EQ(newestMessage(), "Deflection stops all damage.");
}

TEST_F(EncounterTest, SkeletonKingLeavesGoldAndHoldsTheColumn) {
    count(health) = 20;
    rolls({{6, 2}, {6, 3}, {6, 1}, noToughness});
    EXPECT_EQ(meet(enc::SkeletonKing), 1);
    EXPECT_EQ(count(health), 14);
    EXPECT_EQ(board(3, 6), enc::Gold);
    EXPECT_EQ(column(3).drawn, 0);
}

TEST_F(EncounterTest, TheEndFinishesItsColumnAndStays) {
    EXPECT_EQ(meet(enc::TheEnd), 1);
    EXPECT_EQ(column(3).finished, 1U);
    EXPECT_EQ(board(3, 6), enc::TheEnd);
    EXPECT_EQ(column(3).drawn, 0);
}

TEST_F(EncounterTest, EmptyAndCodesOfNoTileAreClearedLikeNothing) {
    for (const int code : {int{enc::Empty}, 24, -1}) {
        column(3).drawn = 0;
        rolls({doorIsDealt});
        EXPECT_EQ(meetAndAdvance(static_cast<enc::Code>(code)), 1) << code;
    }
    EXPECT_EQ(TotalStats(), 0);
}

TEST_F(EncounterTest, FromAfarOnlyTheCellItselfChanges) {
    board(3, 1) = enc::Door;
    board(3, 2) = enc::Gold;
    rolls({{10, 3}});
    EXPECT_EQ(Encounter(3, 2, 1), 1);
    EXPECT_EQ(board(3, 2), enc::Empty);
    EXPECT_EQ(board(3, 1), enc::Door);
    EXPECT_EQ(column(3).drawn, 0);

    rolls({{10, 3}});
    board(3, 6) = enc::Gold;
    EXPECT_EQ(Encounter(3, 6, 1), 1);
    EXPECT_EQ(board(3, 6), enc::Empty);
    EXPECT_EQ(column(3).drawn, 0);
}

TEST_F(EncounterTest, TheNewColumnIsDealtBeforeItsEyesBeamIsDrawn) {
    board(3, 2) = enc::HypnoEye;
    board(3, 6) = enc::Gold;
    rolls({{10, 3}, doorIsDealt, {30, 29}});
    EXPECT_EQ(Encounter(3, 6, 0), 1);
    EXPECT_EQ(count(gold), 3);
    EXPECT_EQ(board(3, 0), enc::Door);
    EXPECT_EQ(board(3, 3), enc::HypnoEye);
    const Point bottom = boardGrid.corner(3, 6);
    EXPECT_EQ(pixelAt(boardGrid.corner(3, 0).x + 8, boardGrid.y + 8), flatColour(tile::door));
    EXPECT_EQ(pixelAt(bottom.x + 8, bottom.y + 8), flatColour(tile::cellar));
}

TEST_F(EncounterTest, DarknessAndCaveTakeTheirTorchesUnlessSightSparesThem) {
    turnsLeft(magicSight) = 1;
    rolls({doorIsDealt, {15, 15}});
    EXPECT_EQ(meetAndAdvance(enc::Darkness), 1);
    EXPECT_EQ(meet(enc::Cave), 1);

    turnsLeft(magicSight) = 0;
    column(3).drawn = 0;
    count(torches) = 3;
    rolls({doorIsDealt, {15, 10}});
    EXPECT_EQ(meetAndAdvance(enc::Darkness), 1);
    EXPECT_EQ(meet(enc::Cave), 1);
    EXPECT_EQ(count(torches), 0);
    EXPECT_EQ(board(3, 6), enc::Empty);
    EXPECT_EQ(column(3).drawn, 1) << "an empty cave does not let the column advance";
}

TEST_F(EncounterTest, StasisStopsThievesWithoutARollAndWithoutItTheySteal) {
    turnsLeft(stasis) = 1;
    count(keys) = 3;
    for (const enc::Code thief : {enc::Thief, enc::MasterThief}) {
        column(3).drawn = 0;
        rolls({doorIsDealt});
        EXPECT_EQ(meetAndAdvance(thief), 1);
    }
    EXPECT_EQ(count(keys), 3);
    turnsLeft(stasis) = 0;
    column(3).drawn = 0;
    rolls({{100, 1}, {9, 1}, {100, 34}, doorIsDealt});
    EXPECT_EQ(meetAndAdvance(enc::Thief), 1);
    EXPECT_EQ(count(keys), 2);
}

TEST_F(EncounterTest, AMasterThiefStealsThreeTimesEachWithItsOwnProtection) {
    level(thiefProtection) = 40;
    count(gold) = 5;
    count(suns) = 1;
    rolls({{100, 41}, {9, 3}, {100, 33}, {100, 40}, {100, 41}, {9, 6}, doorIsDealt});
    EXPECT_EQ(meetAndAdvance(enc::MasterThief), 1);
    EXPECT_EQ(count(gold), 3);
    EXPECT_EQ(count(suns), 0);
    EXPECT_EQ(newestMessage(), "The thief ignores you.");
}

TEST_F(EncounterTest, AMasterThiefKeepsWhatItTookBeforeItsRefusal) {
    count(keys) = 1;
    rolls({{100, 1}, {9, 1}});
    EXPECT_EQ(meet(enc::MasterThief), 0);
    EXPECT_EQ(count(keys), 0);
    EXPECT_EQ(board(3, 6), enc::MasterThief);
    EXPECT_EQ(column(3).drawn, 0);
    EXPECT_EQ(messageBar.lines[1], "Need total stats above 0.") << "the third theft is tried too";
    EXPECT_EQ(messageBar.lines[2], "");
}

}  // namespace gloomdeck
