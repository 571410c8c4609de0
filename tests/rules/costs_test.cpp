// Locks, torches, damage and theft.
#include "rules/costs.h"

#include <vector>

#include "shell/places.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

class LockTest : public GameTest {};
class TorchTest : public GameTest {};
class DamageTest : public GameTest {};
class TheftTest : public GameTest {};

constexpr const char* picked = "You picked the lock!";

}  // namespace

TEST_F(LockTest, AFreePickKeepsTheKeys) {
    level(lockpicking) = 30;
    count(keys) = 2;
    rolls({{100, 30}, {100, 15}});
    EXPECT_EQ(OpenLock(1), 1);
    EXPECT_EQ(OpenLock(2), 1);
    EXPECT_EQ(count(keys), 2);
    EXPECT_EQ(newestMessage(), picked);
    EXPECT_TRUE(ui.messagePosted);
}

TEST_F(LockTest, KeysAreSpentSilentlyBeforeAnyFurtherPicking) {
    level(lockpicking) = 30;
    count(keys) = 3;
    rolls({{100, 31}, {100, 16}});
    EXPECT_EQ(OpenLock(1), 1);
    EXPECT_EQ(count(keys), 2);
    EXPECT_EQ(OpenLock(2), 1);
    EXPECT_EQ(count(keys), 0);
    EXPECT_EQ(newestMessage(), "");
    EXPECT_FALSE(ui.messagePosted);
    EXPECT_EQ(game.turns, 0);
}

TEST_F(LockTest, EachFurtherTryCostsATurnOfThePowersAndTheCounter) {
    level(lockpicking) = 2;
    level(toughness) = 95;
    count(keys) = 1;
    turnsLeft(deflection) = 1;
    turnsLeft(stasis) = 5;
    game.turns = 10;
    rolls({{100, 2}, {100, 2}, {100, 1}});
    EXPECT_EQ(OpenLock(2), 1);
    EXPECT_EQ(count(keys), 1);
    EXPECT_EQ(game.turns, 12);
    EXPECT_EQ(turnsLeft(deflection), 0);
    EXPECT_EQ(turnsLeft(stasis), 3);
    EXPECT_EQ(count(health), 0) << "no other upkeep runs";
    EXPECT_EQ(newestMessage(), "Picked lock in 3 tries.");
    EXPECT_TRUE(ui.messagePosted);
}

TEST_F(LockTest, ASkillBelowTheLockIsRefused) {
    level(lockpicking) = 1;
    count(keys) = 1;
    rolls({{100, 1}});
    EXPECT_EQ(OpenLock(2), 0);
    EXPECT_EQ(newestMessage(), "2 Keys needed.");
    EXPECT_EQ(count(keys), 1);

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
    EXPECT_NE(pixelAt(boardGrid.x + 8, boardGrid.y + 100), flatColour(tile::empty));
}

TEST_F(TorchTest, NeedAsManyAsAreTaken) {
    count(torches) = 2;
    EXPECT_EQ(UseTorches(2), 1);
    EXPECT_EQ(count(torches), 0);
    EXPECT_EQ(UseTorches(1), 0);
    EXPECT_EQ(newestMessage(), "1 Torch needed.");
    count(torches) = 1;
    EXPECT_EQ(UseTorches(2), 0);
    EXPECT_EQ(newestMessage(), "2 Torches needed.");
    EXPECT_EQ(count(torches), 1);
    EXPECT_FALSE(ui.messagePosted);
}

TEST_F(DamageTest, ARequiredHitNeedsHealthAboveItsThresholdButMayTakeItBelow) {
    count(health) = 7;
    EXPECT_EQ(TakeDamage(5, 1, 7), 0);
    EXPECT_EQ(newestMessage(), "Need health above 7.");
    EXPECT_FALSE(ui.messagePosted);
    rolls({{100, 1}});
    EXPECT_EQ(TakeDamage(10, 1, 6), 1);
    EXPECT_EQ(count(health), -3);
}

TEST_F(DamageTest, DeflectionLeavesAThird) {
    struct Hit {
        int amount;
        int required;
        int left;
    };
    const std::vector<Hit> hits{{1, 1, 1}, {2, 1, 1}, {4, 1, 1}, {5, 1, 2}, {7, 0, 2}, {8, 0, 3}, {2, 0, 1}};
    turnsLeft(deflection) = 1;
    for (const Hit& hit : hits) {
        count(health) = 10;
        rolls({{100, 1}});
        EXPECT_EQ(TakeDamage(hit.amount, hit.required, 0), 1);
        EXPECT_EQ(count(health), 10 - hit.left) << hit.amount;
        EXPECT_EQ(newestMessage(), "Deflection reduces damage.");
        EXPECT_TRUE(ui.messagePosted);
    }
}

TEST_F(DamageTest, DeflectionSaysNothingOfAFightThatIsRefused) {
    turnsLeft(deflection) = 1;
    EXPECT_EQ(TakeDamage(9, 1, 0), 0);
    EXPECT_EQ(newestMessage(), "Need health above 0.");
    EXPECT_EQ(messageBar.lines[1], "");

    rolls({{100, 1}});
    EXPECT_EQ(TakeDamage(9, 0, 0), 1);
    EXPECT_EQ(newestMessage(), "Deflection reduces damage.");
    EXPECT_EQ(count(health), -3);
}

TEST_F(DamageTest, ToughnessStopsATenthOfItsMarginAndOneHalvesToEven) {
    struct Hit {
        int skill;
        int roll;
        int stopped;
    };
    const std::vector<Hit> hits{{30, 31, 0}, {30, 30, 1}, {30, 26, 1}, {30, 25, 2}, {30, 20, 2},
                                {30, 15, 2}, {30, 14, 3}, {30, 5, 4},  {95, 1, 10}, {0, 1, 0}};
    for (const Hit& hit : hits) {
        SCOPED_TRACE(hit.roll);
        clearMessages();
        count(health) = 50;
        level(toughness) = hit.skill;
        rolls({{100, hit.roll}});
        EXPECT_EQ(TakeDamage(12, 1, 0), 1);
        EXPECT_EQ(count(health), 38 + hit.stopped);
        const std::string said = "Toughness stops " + std::to_string(hit.stopped) + " points.";
        EXPECT_EQ(newestMessage(), hit.stopped == 0 ? "" : said);
    }
    EXPECT_TRUE(ui.messagePosted);
}

TEST_F(DamageTest, ToughnessComesAfterDeflectionAndNeverHeals) {
    count(health) = 5;
    level(toughness) = 95;
    turnsLeft(deflection) = 1;
    rolls({{100, 65}, {100, 75}});
    EXPECT_EQ(TakeDamage(12, 1, 0), 1);
    EXPECT_EQ(newestMessage(), "Toughness stops all loss.");
    EXPECT_EQ(messageBar.lines[1], "Deflection reduces damage.");
    EXPECT_EQ(count(health), 5);
    EXPECT_EQ(TakeDamage(12, 1, 0), 1);
    EXPECT_EQ(newestMessage(), "Toughness stops 3 points.");
    EXPECT_EQ(count(health), 4);
}

TEST_F(TheftTest, ProtectionHoldsUpToItsLevelAndAcidIgnoresIt) {
    level(thiefProtection) = 40;
    count(keys) = 3;
    rolls({{100, 40}});
    EXPECT_EQ(Steal(1), 1);
    EXPECT_EQ(count(keys), 3);
    EXPECT_EQ(newestMessage(), "The thief ignores you.");
    EXPECT_TRUE(ui.messagePosted);

    rolls({{100, 41}, {9, 1}, {100, 100}});
    EXPECT_EQ(Steal(1), 1);
    EXPECT_EQ(count(keys), 2);

    rolls({{9, 1}, {100, 100}});
    EXPECT_EQ(Steal(0), 1);
    EXPECT_EQ(count(keys), 1);
}

TEST_F(TheftTest, DrawsUntilAnItemIsOwnedAndMayTakeASecondOfIt) {
    count(gold) = 3;
    count(health) = 1;
    rolls({{9, 1}, {9, 8}, {9, 3}, {100, 33}});
    EXPECT_EQ(Steal(0), 1);
    EXPECT_EQ(count(gold), 1);
    count(gold) = 3;
    rolls({{9, 3}, {100, 34}});
    EXPECT_EQ(Steal(0), 1);
    EXPECT_EQ(count(gold), 2);
}

TEST_F(TheftTest, HealthCountsInTheTotalWithItsSign) {
    count(keys) = 3;
    count(health) = -3;
    EXPECT_EQ(Steal(1), 0);
    EXPECT_EQ(newestMessage(), "Need total stats above 0.");
    EXPECT_FALSE(ui.messagePosted);
    EXPECT_EQ(count(keys), 3);

    count(health) = -2;
    rolls({{9, 9}, {9, 1}, {100, 34}});
    EXPECT_EQ(Steal(0), 1);
    EXPECT_EQ(count(keys), 2);
}

}  // namespace gloomdeck
