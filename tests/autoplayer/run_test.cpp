// Runs: what stops them, what is spent on grief, and what every move takes with it.
#include "shell/mouse.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "tests/autoplayer/autoplayer_test.h"

namespace gloomdeck {

namespace {

/// The cell's corner pixels, one of them per look.
bool isFlashing(int col, int row) {
    const Rect r = boardGrid.cell(col, row);
    const Colour first = pixelAt(r.x1, r.y1);
    return (first == colour::yellow || first == colour::red) && pixelAt(r.x2, r.y2) == first;
}

}  // namespace

class AutoplayerRun : public AutoplayerTest {
  protected:
    void SetUp() override {
        AutoplayerTest::SetUp();
        seedRolls(1);
    }

    /// A board that is only grief behind doors: one column, its bottom cell.
    static void doorsOver(int col, enc::Code bottom) {
        fillColumn(col, enc::Door);
        cell(col, bottomRow) = bottom;
    }

    static void holdButton(bool down) {
        pointerMoved(inputQueue(), 300, 470);  // over nothing
        buttonChanged(inputQueue(), down);
    }
};

using AutoplayerStop = AutoplayerRun;
using AutoplayerWeapons = AutoplayerRun;
using AutoplayerSweep = AutoplayerRun;

TEST_F(AutoplayerStop, KeysAreReadOneAMoveAndThoseThatStopLetItBePlayed) {
    prefs.restartSwitch = prefs.skipText = 1;
    count(bombs) = count(lightningBolts) = 1;
    EXPECT_EQ(movesPlayed({"x"}), 0) << "no switch is on";
    allow(obstaclesOn);
    EXPECT_EQ(movesPlayed(), 0) << "nor is there a move";
    EXPECT_EQ(readKey(), "x") << "so no key was read";
    allow(goodStuffOn);
    for (const auto key : {keycode::space, keycode::escape, keycode::enter}) EXPECT_EQ(movesPlayed({key}), 1);
    EXPECT_EQ(movesPlayed({keycode::up, "Q", "x", keycode::space}), 4);
    EXPECT_FALSE(keyWaiting());
}

TEST_F(AutoplayerStop, ACloseRequestStaysToBeActedOn) {
    allow(goodStuffOn);
    closeRequested(inputQueue());
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(readKey(), keycode::close);
    endRequested(inputQueue());
    EXPECT_EQ(movesPlayed(), 1);
}

TEST_F(AutoplayerStop, TheButtonThatStoppedARunIsPressedOnNothing) {
    allow(goodStuffOn);
    holdButton(true);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(handleMouse(), 0);
    EXPECT_EQ(pressedWidget, pressedNothing);
    EXPECT_TRUE(CancelRequested()) << "as long as it is held";
    pointerLeft(inputQueue());
    EXPECT_FALSE(CancelRequested());
    holdButton(false);
    EXPECT_FALSE(CancelRequested());
    EXPECT_EQ(handleMouse(), 0);
    EXPECT_EQ(pressedWidget, notPressed);
}

TEST_F(AutoplayerStop, TheCheckComesBetweenTheChoiceAndTheMove) {
    allow(goodStuffOn);
    board(2, 6) = enc::Chest;
    script::feedAtPoll([looked = false](InputQueue& queue) mutable {
        if (looked) return false;
        EXPECT_EQ(game.turns, 0);
        EXPECT_FALSE(isFlashing(2, 6));
        board(2, 6) = enc::Fruit;
        board(5, 6) = enc::Book;
        keyTyped(queue, keycode::space);
        return looked = true;
    });
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(column(2).drawn, 1) << "the column stays chosen";
    EXPECT_GT(count(health), 0) << "what is met is what lies there now";
}

TEST_F(AutoplayerRun, TheTargetFlashesYellowAndRedAndASpaceThenIsReadBeforeTheNextMove) {
    allow(goodStuffOn);
    prefs.GameSpeed = 2;
    board(4, 6) = enc::Gold;
    std::vector<Colour> seen;
    script::feedWhenPausing([&](InputQueue& queue) {
        if (seen.empty()) keyTyped(queue, keycode::space);
        if (game.turns == 0)
            seen.push_back(isFlashing(4, 6) ? pixelAt(boardGrid.cell(4, 6).x1, boardGrid.cell(4, 6).y1) : 0);
        return true;
    });
    EXPECT_EQ(movesPlayed(), 2);
    const Colour y = colour::yellow;
    const Colour r = colour::red;
    EXPECT_EQ(seen, (std::vector{y, r, y, r, y, r, y, r}));
    EXPECT_EQ(script::sleptMilliseconds(), 2 * 400);
    EXPECT_FALSE(isFlashing(4, 6));
}

// A Ghost whose only ways out lie past the ends counts as free, stays, and cannot be fought.
TEST_F(AutoplayerRun, ARefusedEncounterTakesATurnAndTheRunGoesOn) {
    allow(griefOn);
    onlyColumns({0});
    board(0, 6) = enc::Ghost;
    column(0).drawn = 59;
    column(1).drawn = 60;
    EXPECT_EQ(movesPlayed({"a", "b", keycode::space}), 3);
    EXPECT_EQ(board(0, 6), enc::Ghost);
    EXPECT_EQ(newestMessage(), "") << "the turn has scrolled the refusal away";
    EXPECT_EQ(messageBar.lines[1], "Need health above 0.");
}

TEST_F(AutoplayerWeapons, AreSpentOnGriefBeforeItIsMetWithTheirSwitchOnly) {
    onlyColumns({2});
    count(lightningBolts) = count(bombs) = 1;
    count(health) = 1000;
    level(lightningBoost) = level(thiefProtection) = 95;
    struct {
        int switches;
        enc::Code code;
        int bolts;
        int bombs;
        int drawn;
    } const moves[] = {
        {griefOn, enc::Thief, 1, 1, 1},
        {fairlyEasyOn + spellsSkillsOn, enc::Skeleton, 1, 1, 2},
        {griefOn + spellsSkillsOn, enc::MasterThief, 0, 1, 2},
        {griefOn + spellsSkillsOn, enc::MasterThief, 0, 0, 2},
        {griefOn + spellsSkillsOn, enc::MasterThief, 0, 0, 3},
    };
    for (const auto& m : moves) {
        allow(m.switches);
        doorsOver(2, m.code);
        EXPECT_TRUE(playsOneMove());
        EXPECT_EQ((std::array{count(lightningBolts), count(bombs), column(2).drawn}),
                  (std::array{m.bolts, m.bombs, m.drawn}))
            << m.code;
    }
}

TEST_F(AutoplayerSweep, ABoltNeedsHopeAndABombSomethingInAColumnThatIsNotDone) {
    allow(griefOn + spellsSkillsOn);
    onlyColumns({1, 2, 4});
    board(0, 6) = enc::Door;
    board(1, 6) = enc::TheEnd;
    struct {
        enc::Code code;
        int boost;
        int bolts;
        int bombs;
    } const moves[] = {
        {enc::DoubleDoor, 0, 2, 1},  // its chance is 0
        {enc::DoubleDoor, 1, 1, 1},
        {enc::Chest, 95, 1, 0},  // never to be struck, whatever the skill
    };
    count(lightningBolts) = count(bombs) = 2;
    for (const auto& m : moves) {
        fillColumn(4, m.code);
        level(lightningBoost) = m.boost;
        EXPECT_TRUE(playsOneMove());
        EXPECT_EQ((std::array{count(lightningBolts), count(bombs)}), (std::array{m.bolts, m.bombs}))
            << m.code;
    }
    EXPECT_EQ(board(0, 6), enc::Door) << "its column is finished";
}

TEST_F(AutoplayerSweep, ComesOnlyWithGriefAndAfterTheChoiceFoundNothing) {
    onlyColumns({0, 4});
    board(0, 6) = enc::Door;
    board(4, 6) = enc::Flower;
    count(bombs) = 1;
    allow(spellsSkillsOn);
    EXPECT_EQ(movesPlayed(), 0);
    allow(griefOn + spellsSkillsOn + fairlyEasyOn);
    EXPECT_TRUE(playsOneMove());
    EXPECT_EQ(count(bombs), 1);
    EXPECT_EQ(column(4).drawn, 1);
}

TEST_F(AutoplayerSweep, MeetsUnseenWhatAnEyeHidesWhereARefusalTakesNoTurn) {
    allow(griefOn);
    onlyColumns({1, 3, 5});
    for (const int col : {1, 3}) {
        board(col, 2) = enc::HypnoEye;
        board(col, 6) = enc::Skeleton;
    }
    EXPECT_EQ(movesPlayed(), 0);
    EXPECT_EQ(newestMessage(), "Need health above 0.");
    board(3, 6) = enc::Meat;
    EXPECT_TRUE(playsOneMove());
    EXPECT_EQ(column(3).drawn, 1);
    EXPECT_GE(count(health), 3);
}

TEST_F(AutoplayerSweep, SpendsWeaponsOnTheEyeItself) {
    allow(griefOn + spellsSkillsOn);
    onlyColumns({2});
    count(lightningBolts) = count(bombs) = 1;
    level(lightningBoost) = 67;  // the eye is struck for certain
    for (const int bombsLeft : {1, 0}) {
        doorsOver(2, enc::Gold);
        board(2, 1) = enc::HypnoEye;
        EXPECT_TRUE(playsOneMove());
        EXPECT_EQ((std::array{count(lightningBolts), count(bombs), board(2, 1), board(2, 6)}),
                  (std::array{0, bombsLeft, +enc::Empty, +enc::Gold}));
    }
}

}  // namespace gloomdeck
