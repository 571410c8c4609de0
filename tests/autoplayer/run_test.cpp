// Runs: what stops them, what is spent on grief, and what every move takes with it.
#include "autoplayer/autoplayer.h"
#include "platform/input.h"
#include "shell/mouse.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "tests/autoplayer/autoplayer_test.h"

namespace gloomdeck {

namespace {

constexpr Point overNothing{300, 470};

void waitingKey(std::string_view key) { keyTyped(inputQueue(), key); }

void heldButton() {
    pointerMoved(inputQueue(), overNothing.x, overNothing.y);
    buttonChanged(inputQueue(), true);
}

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

    /// Runs with the input that waits; the answer is the number of moves.
    static int movesPlayed() {
        const int before = game.turns;
        RunAutoplayer();
        return game.turns - before;
    }
};

using AutoplayerStop = AutoplayerRun;
using AutoplayerWeapons = AutoplayerRun;
using AutoplayerSweep = AutoplayerRun;

TEST_F(AutoplayerStop, WithoutASwitchNothingHappens) {
    prefs.restartSwitch = prefs.skipText = 1;
    board(0, 6) = enc::Chest;
    count(bombs) = count(lightningBolts) = 1;
    waitingKey("x");
    EXPECT_EQ(movesPlayed(), 0);
    EXPECT_EQ(board(0, 6), enc::Chest);
    EXPECT_TRUE(keyWaiting()) << "no key is read either";
}

TEST_F(AutoplayerStop, TheKeysThatStopLetTheChosenMoveBePlayed) {
    allow({goodStuffBit});
    for (const auto key : {keycode::space, keycode::escape, keycode::enter}) {
        waitingKey(key);
        EXPECT_EQ(movesPlayed(), 1);
        EXPECT_FALSE(keyWaiting());
    }
    EXPECT_EQ(column(0).drawn + column(1).drawn + column(2).drawn, 3);
}

TEST_F(AutoplayerStop, OtherKeysAreConsumedOneAMove) {
    allow({goodStuffBit, fairlyEasyBit, obstaclesBit, griefBit});
    for (const auto key : {keycode::up, std::string_view("Q"), std::string_view("x"), keycode::space})
        waitingKey(key);
    EXPECT_EQ(movesPlayed(), 4);
    EXPECT_FALSE(keyWaiting());
}

TEST_F(AutoplayerStop, NoKeyIsReadWhenThereIsNoMove) {
    allow({obstaclesBit});
    waitingKey(keycode::space);
    EXPECT_EQ(movesPlayed(), 0);
    EXPECT_TRUE(keyWaiting());
}

TEST_F(AutoplayerStop, ACloseRequestStaysToBeActedOn) {
    allow({goodStuffBit});
    closeRequested(inputQueue());
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(readKey(), keycode::close);
    endRequested(inputQueue());
    EXPECT_EQ(movesPlayed(), 1);
}

TEST_F(AutoplayerStop, TheButtonThatStoppedARunIsPressedOnNothing) {
    allow({goodStuffBit});
    pressedWidget = notPressed;
    heldButton();
    EXPECT_EQ(movesPlayed(), 1);
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_EQ(pressedWidget, pressedNothing);
        EXPECT_EQ(handleMouse(), 0);
    }
    buttonChanged(inputQueue(), false);
    EXPECT_EQ(handleMouse(), 0);
    EXPECT_EQ(pressedWidget, notPressed);
    EXPECT_EQ(clickedButton, -1);
}

TEST_F(AutoplayerStop, APointerThatIsAwayStopsNothing) {
    heldButton();
    EXPECT_TRUE(CancelRequested());
    EXPECT_TRUE(CancelRequested()) << "as long as it is held";
    pointerLeft(inputQueue());
    EXPECT_FALSE(CancelRequested());
    pointerMoved(inputQueue(), overNothing.x, overNothing.y);
    buttonChanged(inputQueue(), false);
    EXPECT_FALSE(CancelRequested());
}

TEST_F(AutoplayerStop, TheCheckComesBetweenTheChoiceAndTheMove) {
    allow({goodStuffBit});
    board(2, 6) = enc::Chest;
    bool looked = false;
    script::feedAtPoll([&](InputQueue& queue) {
        if (looked) return false;
        looked = true;
        EXPECT_EQ(game.turns, 0);
        EXPECT_FALSE(isFlashing(2, 6));
        board(2, 6) = enc::Fruit;
        board(5, 6) = enc::Book;
        keyTyped(queue, keycode::space);
        return true;
    });
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(column(2).drawn, 1) << "the column stays chosen";
    EXPECT_GT(count(health), 0) << "what is met is what lies there now";
    EXPECT_EQ(board(5, 6), enc::Book);
}

TEST_F(AutoplayerStop, ASpaceDuringAMoveIsReadBeforeTheNext) {
    allow({goodStuffBit});
    prefs.GameSpeed = 2;
    bool typed = false;
    script::feedWhenPausing([&](InputQueue& queue) {
        if (!typed) keyTyped(queue, keycode::space);
        return typed = true;
    });
    EXPECT_EQ(movesPlayed(), 2);
}

TEST_F(AutoplayerRun, TheTargetFlashesYellowAndRed) {
    allow({goodStuffBit});
    prefs.GameSpeed = 2;
    board(4, 6) = enc::Gold;
    std::vector<Colour> seen;
    script::feedWhenPausing([&](InputQueue&) {
        EXPECT_TRUE(isFlashing(4, 6));
        seen.push_back(pixelAt(boardGrid.cell(4, 6).x1, boardGrid.cell(4, 6).y1));
        return true;
    });
    waitingKey(keycode::space);
    EXPECT_EQ(movesPlayed(), 1);
    const Colour yellow = colour::yellow;
    const Colour red = colour::red;
    EXPECT_EQ(seen, (std::vector{yellow, red, yellow, red, yellow, red, yellow, red}));
    EXPECT_EQ(script::sleptMilliseconds(), 400);
    EXPECT_FALSE(isFlashing(4, 6));
}

TEST_F(AutoplayerRun, TheBoardIsPlayedToItsEnd) {
    allow({goodStuffBit});
    for (int col = 0; col < columnCount; ++col) {
        board(col, 6) = enc::TheEnd;
        column(col).drawn = 59;
    }
    EXPECT_EQ(movesPlayed(), columnCount);
    EXPECT_EQ(prefs.scenarioOver, 1);
    EXPECT_EQ(movesPlayed(), 0);
}

// A Ghost whose only ways out lie past the ends counts as free, stays, and cannot be fought.
TEST_F(AutoplayerRun, ARefusedEncounterTakesATurnAndTheRunGoesOn) {
    allow({griefBit});
    onlyColumns({0});
    board(0, 6) = enc::Ghost;
    column(0).drawn = 59;
    column(1).drawn = 60;
    playMoves(5);
    EXPECT_EQ(game.turns, 5);
    EXPECT_EQ(board(0, 6), enc::Ghost);
    EXPECT_EQ(newestMessage(), "") << "the turn has scrolled the refusal away";
    EXPECT_EQ(messageBar.lines[1], "Need health above 0.");
}

TEST_F(AutoplayerWeapons, AreSpentBeforeGriefIsMet) {
    allow({griefBit, spellsSkillsBit});
    onlyColumns({2});
    fillColumn(2, enc::Door);
    board(2, 6) = enc::MasterThief;
    count(lightningBolts) = count(bombs) = count(torches) = 1;
    level(lightningBoost) = 95;
    waitingKey(keycode::space);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(count(lightningBolts), 0);
    EXPECT_EQ(board(2, 6), enc::Empty) << "struck and not stepped over";
    EXPECT_EQ(column(2).drawn, 0);

    board(2, 6) = enc::MasterThief;
    waitingKey(keycode::space);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(count(bombs), 0);
    EXPECT_EQ(board(2, 6), enc::Empty);

    board(2, 6) = enc::MasterThief;
    count(health) = 40;
    waitingKey(keycode::space);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_LT(TotalStats(), 41) << "nothing left to spend: the thief is met";
}

TEST_F(AutoplayerWeapons, AreKeptWithoutTheirSwitchAndForWhatIsEasy) {
    allow({griefBit});
    onlyColumns({2});
    fillColumn(2, enc::Door);
    board(2, 6) = enc::Thief;
    count(lightningBolts) = count(bombs) = 1;
    count(health) = 1000;
    level(thiefProtection) = 95;
    playMoves(1);
    EXPECT_EQ(column(2).drawn, 1);

    allow({fairlyEasyBit, spellsSkillsBit});
    board(2, 6) = enc::Skeleton;
    playMoves(1);
    EXPECT_EQ(column(2).drawn, 2);
    EXPECT_EQ(count(lightningBolts) + count(bombs), 2);
}

TEST_F(AutoplayerWeapons, ABoltNeedsHope) {
    allow({griefBit, spellsSkillsBit});
    onlyColumns({2});
    fillColumn(2, enc::DoubleDoor);  // its chance is 0
    count(lightningBolts) = count(bombs) = 2;
    playMoves(1);
    EXPECT_EQ(count(lightningBolts), 2);
    EXPECT_EQ(count(bombs), 1);
    fillColumn(2, enc::DoubleDoor);
    level(lightningBoost) = 1;
    playMoves(1);
    EXPECT_EQ(count(lightningBolts), 1);
    EXPECT_EQ(count(bombs), 1);
    fillColumn(2, enc::Chest);  // never to be struck, whatever the skill
    level(lightningBoost) = 95;
    playMoves(1);
    EXPECT_EQ(count(lightningBolts), 1);
    EXPECT_EQ(count(bombs), 0);
}

TEST_F(AutoplayerSweep, BombsWhatBlocksAndSparesWhatIsEmptyOrDone) {
    allow({griefBit, spellsSkillsBit});
    onlyColumns({1, 2, 4});
    fillColumn(0, enc::Door);
    board(1, 6) = enc::TheEnd;
    board(4, 6) = enc::Door;
    board(5, 6) = enc::Trap;
    count(bombs) = 3;
    playMoves(1);
    EXPECT_EQ(board(0, 6), enc::Door) << "its column is finished";
    EXPECT_EQ(board(4, 6), enc::Empty);
    EXPECT_EQ(count(bombs), 2);
    allow({griefBit});
    board(4, 6) = enc::Door;
    EXPECT_EQ(movesPlayed(), 0);
}

TEST_F(AutoplayerSweep, ComesOnlyAfterTheChoiceFoundNothing) {
    allow({griefBit, spellsSkillsBit, fairlyEasyBit});
    onlyColumns({0, 4});
    board(0, 6) = enc::Door;
    board(4, 6) = enc::Flower;
    count(bombs) = 1;
    playMoves(1);
    EXPECT_EQ(count(bombs), 1);
    EXPECT_EQ(column(4).drawn, 1);
}

TEST_F(AutoplayerSweep, MeetsUnseenWhatAnEyeHides) {
    allow({griefBit});
    board(2, 3) = enc::HypnoEye;
    board(2, 6) = enc::Meat;
    script::feedAtPoll([](InputQueue&) {
        EXPECT_FALSE(isFlashing(2, 6));
        return false;
    });
    waitingKey(keycode::space);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_GE(count(health), 3);
    EXPECT_EQ(column(2).drawn, 1);
}

TEST_F(AutoplayerSweep, ARefusalGoesOnToTheNextColumnAndTakesNoTurn) {
    allow({griefBit});
    onlyColumns({1, 3, 5});
    for (const int col : {1, 3}) {
        board(col, 2) = enc::HypnoEye;
        board(col, 6) = enc::Skeleton;
    }
    EXPECT_EQ(movesPlayed(), 0);
    EXPECT_EQ(newestMessage(), "Need health above 0.");
    board(3, 6) = enc::Empty;
    waitingKey(keycode::space);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(column(1).drawn, 0);
    EXPECT_EQ(column(3).drawn, 1);
}

TEST_F(AutoplayerSweep, SpendsWeaponsOnTheEyeItself) {
    allow({griefBit, spellsSkillsBit});
    onlyColumns({2});
    fillColumn(2, enc::Door);
    board(2, 1) = enc::HypnoEye;
    count(lightningBolts) = count(bombs) = 1;
    level(lightningBoost) = 67;  // the eye is struck for certain
    playMoves(1);
    EXPECT_EQ(count(lightningBolts), 0);
    EXPECT_EQ(board(2, 1), enc::Empty);
    board(2, 1) = enc::HypnoEye;
    board(2, 6) = enc::Gold;
    playMoves(1);
    EXPECT_EQ(count(bombs), 0);
    EXPECT_EQ(board(2, 1), enc::Empty) << "the blast goes off at the eye";
    EXPECT_EQ(board(2, 6), enc::Gold) << "far below it";
}

}  // namespace gloomdeck
