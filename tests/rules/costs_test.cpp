// Locks, damage and theft.
#include "rules/costs.h"

#include "tests/rules/rule_test.h"

namespace gloomdeck {

using CostsTest = RuleTest;

TEST_F(CostsTest, ALockIsPickedForFreeElseTakesItsKeysSilentlyElseTheSkillTriesAgain) {
    // clang-format off
    const std::vector<std::tuple<int, int, int, std::vector<int>, int, int, const char*>> locks{
        {1, 30, 2, {30},      1, 2, "You picked the lock!"},
        {1, 30, 2, {31},      1, 1, ""},
        {2, 30, 2, {15},      1, 2, "You picked the lock!"},
        {2, 30, 2, {16},      1, 0, ""},
        {2,  2, 1, {2, 2, 1}, 1, 1, "Picked lock in 3 tries."},
        {1,  1, 0, {2, 1},    1, 0, "Picked lock in 2 tries."},
        {2,  1, 1, {1},       0, 1, "2 Keys needed."},
    };
    // clang-format on
    for (const auto& [needed, skill, owned, drawn, opened, left, said] : locks) {
        clearMessages();
        ui.messagePosted = false;
        level(lockpicking) = skill;
        count(keys) = owned;
        game.turns = 10;
        for (const int roll : drawn) rolls({{100, roll}});
        EXPECT_EQ(OpenLock(needed), opened);
        EXPECT_EQ(count(keys), left) << said;
        EXPECT_EQ(newestMessage(), said);
        EXPECT_EQ(ui.messagePosted, opened && !newestMessage().empty());
        EXPECT_EQ(game.turns, 9 + static_cast<int>(drawn.size()));
    }
}

TEST_F(CostsTest, DeflectionLeavesAThirdOfAHitToughnessStopsATenthOfItsMarginAndARefusalIsSaidAlone) {
    struct Hit {
        int amount, required, threshold, health, toughness, deflection;
        int roll, taken, left;  // roll 0: none is drawn
        const char* said;
    };
    // clang-format off
    const std::vector<Hit> hits{
        { 5, 1, 7,   7,  0, 0,   0,  0,  7, "Need health above 7.|"},
        {10, 1, 6,   7,  0, 0,   1,  1, -3, "|"},
        { 1, 1, 0,  10,  0, 1,   1,  1,  9, "Deflection reduces damage.|"},
        { 5, 1, 0,  10,  0, 1,   1,  1,  8, "Deflection reduces damage.|"},
        { 8, 0, 0,  10,  0, 1,   1,  1,  7, "Deflection reduces damage.|"},
        { 1, 0, 0,  10, 95, 1,   0,  1, 10, "Deflection stops all damage.|"},
        { 9, 1, 0,   0,  0, 1,   0,  0,  0, "Need health above 0.|"},
        { 9, 0, 0,   0,  0, 1,   1,  1, -3, "Deflection reduces damage.|"},
        {12, 1, 0,  50, 30, 0,  31,  1, 38, "|"},
        {12, 1, 0,  50, 30, 0,  30,  1, 39, "Toughness stops 1 points.|"},
        {12, 1, 0,  50, 30, 0,  25,  1, 40, "Toughness stops 2 points.|"},  // halves go to even
        {12, 1, 0,  50, 30, 0,  15,  1, 40, "Toughness stops 2 points.|"},
        {10, 1, 0,   5, 95, 1,  65,  1,  5, "Toughness stops all loss.|Deflection reduces damage."},
    };
    // clang-format on
    for (const Hit& hit : hits) {
        SCOPED_TRACE(&hit - hits.data());
        clearMessages();
        ui.messagePosted = false;
        count(health) = hit.health;
        level(toughness) = hit.toughness;
        turnsLeft(deflection) = hit.deflection;
        if (hit.roll != 0) rolls({{100, hit.roll}});
        EXPECT_EQ(TakeDamage(hit.amount, hit.required, hit.threshold), hit.taken);
        EXPECT_EQ(leftoverRolls(), 0);
        EXPECT_EQ(count(health), hit.left);
        EXPECT_EQ(messagesShown(), hit.said);
        EXPECT_EQ(ui.messagePosted, hit.taken && !newestMessage().empty());
    }
}

TEST_F(CostsTest, ProtectionHoldsUpToItsLevelAndAThiefTakesOneOrTwoOfWhatThereIs) {
    level(thiefProtection) = 40;
    count(keys) = 3;
    rolls({{100, 40}});
    EXPECT_EQ(Steal(1), 1);
    EXPECT_EQ(newestMessage(), "The thief ignores you.");
    EXPECT_TRUE(ui.messagePosted);
    count(health) = -3;
    EXPECT_EQ(Steal(0), 0) << "health counts with its sign";
    EXPECT_EQ(newestMessage(), "Need total stats above 0.");
    count(health) = -2;
    rolls({{100, 41}, {9, 9}, {9, 2}, {9, 1}, {100, 33}});
    EXPECT_EQ(Steal(1), 1);
    EXPECT_EQ(count(keys), 1);
    count(health) = 2;
    rolls({{9, 9}, {100, 34}, {9, 9}});
    EXPECT_EQ(Steal(0) + Steal(0), 2);
    EXPECT_EQ(game.inventory, Inventory{1}) << "the last of a kind is taken without a second roll";
}

}  // namespace gloomdeck
