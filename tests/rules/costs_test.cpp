// Locks, torches, damage and theft.
#include "rules/costs.h"

#include "tests/rules/rule_test.h"

namespace gloomdeck {

namespace {

class LockTest : public RuleTest {};
class DamageTest : public RuleTest {};
class TheftTest : public RuleTest {};

}  // namespace

TEST_F(LockTest, IsPickedForFreeElseTakesItsKeysSilently) {
    level(lockpicking) = 30;
    count(keys) = 3;
    rolls({{100, 31}, {100, 16}});
    EXPECT_EQ(OpenLock(1), 1);
    EXPECT_EQ(count(keys), 2);
    EXPECT_EQ(OpenLock(2), 1);
    EXPECT_EQ(count(keys), 0);
    EXPECT_EQ(newestMessage(), "");
    count(keys) = 2;
    rolls({{100, 30}, {100, 15}});
    EXPECT_EQ(OpenLock(1), 1);
    EXPECT_EQ(OpenLock(2), 1);
    EXPECT_EQ(count(keys), 2);
    EXPECT_EQ(newestMessage(), "You picked the lock!");
    EXPECT_TRUE(ui.messagePosted);
    EXPECT_EQ(game.turns, 0);
}

TEST_F(LockTest, EachFurtherTryCostsATurnOfThePowersAndTheCounterAndNothingElse) {
    game.skills = {2, 0, 0, 0, 0, 95};
    game.powers = {0, 5, 1};
    count(keys) = 1;
    game.turns = 10;
    rolls({{100, 2}, {100, 2}, {100, 1}});
    EXPECT_EQ(OpenLock(2), 1);
    EXPECT_EQ(count(keys), 1);
    EXPECT_EQ(count(health), 0);
    EXPECT_EQ(game.turns, 12);
    EXPECT_EQ(game.powers, (std::array<std::int32_t, 4>{0, 3, 0, 0}));
    EXPECT_EQ(newestMessage(), "Picked lock in 3 tries.");
    EXPECT_TRUE(ui.messagePosted);
}

TEST_F(LockTest, ASkillBelowTheLockIsRefused) {
    level(lockpicking) = 1;
    count(keys) = 1;
    rolls({{100, 1}});
    EXPECT_EQ(OpenLock(2), 0);
    EXPECT_EQ(newestMessage(), "2 Keys needed.");
    count(keys) = 0;
    rolls({{100, 2}, {100, 1}});
    EXPECT_EQ(OpenLock(1), 1);
    EXPECT_EQ(newestMessage(), "Picked lock in 2 tries.");
}

TEST_F(LockTest, SightThatEndsWhilePickingShowsTheEyesBeforeTheNextTry) {
    level(lockpicking) = 50;
    turnsLeft(magicSight) = 1;
    board(0, 0) = enc::HypnoEye;
    rolls({{100, 51}, {30, 30}, {100, 50}});
    EXPECT_EQ(OpenLock(1), 1);
    EXPECT_EQ(newestMessage(), "Picked lock in 2 tries.");
    EXPECT_TRUE(beamEnds(0, 30));
}

TEST_F(LockTest, TorchesAreNotSpentUnlessThereAreEnough) {
    count(torches) = 1;
    EXPECT_EQ(UseTorches(2), 0);
    EXPECT_EQ(newestMessage(), "2 Torches needed.");
    EXPECT_EQ(UseTorches(1), 1);
    EXPECT_EQ(UseTorches(1), 0);
    EXPECT_EQ(newestMessage(), "1 Torch needed.");
}

TEST_F(DamageTest, ARequiredHitNeedsHealthAboveItsThresholdButMayTakeItBelowNothing) {
    count(health) = 7;
    EXPECT_EQ(TakeDamage(5, 1, 7), 0);
    EXPECT_EQ(newestMessage(), "Need health above 7.");
    rolls({{100, 1}});
    EXPECT_EQ(TakeDamage(10, 1, 6), 1);
    EXPECT_EQ(count(health), -3);
}

TEST_F(DamageTest, DeflectionLeavesAThirdAndAtLeastOneOfAFight) {
    struct Hit {
        int amount;
        int required;
        int left;
    };
    turnsLeft(deflection) = 1;
    for (const Hit hit : {Hit{1, 1, 1}, {4, 1, 1}, {5, 1, 2}, {7, 0, 2}, {8, 0, 3}, {2, 0, 1}}) {
        count(health) = 10;
        rolls({{100, 1}});
        EXPECT_EQ(TakeDamage(hit.amount, hit.required, 0), 1);
        EXPECT_EQ(count(health), 10 - hit.left) << hit.amount;
    }
    EXPECT_EQ(newestMessage(), "Deflection reduces damage.");
    EXPECT_TRUE(ui.messagePosted);
}

TEST_F(DamageTest, DeflectionSaysNothingOfAFightThatIsRefused) {
    turnsLeft(deflection) = 1;
    EXPECT_EQ(TakeDamage(9, 1, 0), 0);
    EXPECT_EQ(newestMessage(), "Need health above 0.");
    EXPECT_EQ(messageBar.lines[1], "");
    rolls({{100, 1}});
    EXPECT_EQ(TakeDamage(9, 0, 0), 1);
    EXPECT_EQ(newestMessage(), "Deflection reduces damage.");
}

TEST_F(DamageTest, ToughnessStopsATenthOfItsMarginAndOneHalvesToEven) {
    struct Hit {
        int skill;
        int roll;
        int stopped;
    };
    for (const Hit hit : {Hit{30, 31, 0}, {30, 30, 1}, {30, 25, 2}, {30, 15, 2}, {30, 5, 4}, {95, 1, 10}}) {
        clearMessages();
        count(health) = 50;
        level(toughness) = hit.skill;
        rolls({{100, hit.roll}});
        EXPECT_EQ(TakeDamage(12, 1, 0), 1);
        EXPECT_EQ(count(health), 38 + hit.stopped) << hit.roll;
        const std::string said = "Toughness stops " + std::to_string(hit.stopped) + " points.";
        EXPECT_EQ(newestMessage(), hit.stopped == 0 ? "" : said);
    }
    EXPECT_TRUE(ui.messagePosted);
}

TEST_F(DamageTest, ToughnessComesAfterDeflectionAndNeverHeals) {
    count(health) = 5;
    level(toughness) = 95;
    turnsLeft(deflection) = 1;
    rolls({{100, 65}});
    EXPECT_EQ(TakeDamage(10, 1, 0), 1);
    EXPECT_EQ(newestMessage(), "Toughness stops all loss.");
    EXPECT_EQ(messageBar.lines[1], "Deflection reduces damage.");
    EXPECT_EQ(count(health), 5);
}

TEST_F(TheftTest, ProtectionHoldsUpToItsLevel) {
    level(thiefProtection) = 40;
    count(keys) = 3;
    rolls({{100, 40}});
    EXPECT_EQ(Steal(1), 1);
    EXPECT_EQ(count(keys), 3);
    EXPECT_EQ(newestMessage(), "The thief ignores you.");
    EXPECT_TRUE(ui.messagePosted);
    rolls({{100, 41}, {9, 1}, {100, 33}});
    EXPECT_EQ(Steal(1), 1);
    EXPECT_EQ(count(keys), 1);
}

TEST_F(TheftTest, HealthCountsInTheTotalWithItsSignAndIsTakenOnlyWhereThereIsSome) {
    count(keys) = 3;
    count(health) = -3;
    EXPECT_EQ(Steal(0), 0);
    EXPECT_EQ(newestMessage(), "Need total stats above 0.");
    count(health) = -2;
    rolls({{9, 9}, {9, 2}, {9, 1}, {100, 34}});
    EXPECT_EQ(Steal(0), 1);
    EXPECT_EQ(count(keys), 2);
    game.inventory = {0, 0, 0, 0, 0, 0, 0, 0, 1};
    rolls({{9, 9}});
    EXPECT_EQ(Steal(0), 1);
    EXPECT_EQ(count(health), 0);
}

}  // namespace gloomdeck
