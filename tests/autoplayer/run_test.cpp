// Runs: what stops them, what is spent on grief, and what every move takes with it.
#include "autoplayer/autoplayer.h"
#include "platform/input.h"
#include "rules/show.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/press.h"
#include "tests/autoplayer/autoplayer_test.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

class AutoplayerTest : public GameTest {
  protected:
    /// Runs with these keys waiting.
    static int movesPlayed(std::initializer_list<std::string_view> keys = {}) {
        seedRolls(1);
        for (const auto key : keys) keyTyped(inputQueue(), key);
        const int before = game.turns;
        RunAutoplayer();
        return game.turns - before;
    }
};

TEST_F(AutoplayerTest, ReadsAKeyAMoveAndThoseThatStopLetItBePlayed) {
    count(bombs) = count(lightningBolts) = 1;
    EXPECT_EQ(movesPlayed({"x"}), 0) << "no switch is on";
    allow(hardOn);
    EXPECT_EQ(movesPlayed(), 0) << "nor is there a move";
    EXPECT_EQ(readKey(), "x") << "so no key was read";
    allow(goodOn);
    for (const auto key : {keycode::space, keycode::escape, keycode::enter}) EXPECT_EQ(movesPlayed({key}), 1);
    EXPECT_EQ(movesPlayed({keycode::up, "Q", "x", keycode::space}), 4);
    EXPECT_FALSE(keyWaiting());
    closeRequested(inputQueue());
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(movesPlayed(), 1) << "a close request stays to be acted on";
    EXPECT_EQ(readKey(), keycode::close);
    endRequested(inputQueue());
    EXPECT_EQ(movesPlayed(), 1);
}

TEST_F(AutoplayerTest, PressesTheButtonThatStoppedItOnNothing) {
    allow(goodOn);
    pointerMoved(inputQueue(), 300, 470);  // over nothing
    buttonChanged(inputQueue(), true);
    EXPECT_EQ(movesPlayed(), 1);
    EXPECT_EQ(handleMouse(), 0);
    EXPECT_EQ(pressedWidget, notPressed);
    EXPECT_TRUE(CancelRequested()) << "as long as it is held";
    pointerLeft(inputQueue());
    EXPECT_FALSE(CancelRequested());
    pointerMoved(inputQueue(), 300, 470);
    buttonChanged(inputQueue(), false);
    EXPECT_FALSE(CancelRequested());
}

TEST_F(AutoplayerTest, ChoosesThenChecksThenMoves) {
    allow(goodOn);
    prefs.GameSpeed = 2;
    board(4, 6) = enc::Chest;
    script::feedAtPoll([looked = false](InputQueue&) mutable {
        if (looked) return false;
        board(4, 6) = enc::Fruit;
        board(2, 6) = enc::Book;
        return looked = true;
    });
    script::feedWhenPausing([typed = false](InputQueue& queue) mutable {
        if (!std::exchange(typed, true)) keyTyped(queue, keycode::space);
        return true;
    });
    EXPECT_EQ(movesPlayed(), 2) << "the Space typed during the first move is read before the second";
    EXPECT_EQ(column(4).drawn, 1) << "the column stays chosen";
    EXPECT_GT(count(health), 0) << "what is met is what lies there now";
}

// A Ghost whose only ways out lie past the ends counts as free, stays, and cannot be fought.
TEST_F(AutoplayerTest, GoesOnWhereAnEncounterIsRefusedAfterATurn) {
    allow(griefOn);
    onlyColumns({0});
    board(0, 6) = enc::Ghost;
    column(0).drawn = 59;
    column(1).drawn = 60;
    EXPECT_EQ(movesPlayed({"a", "b", keycode::space}), 3);
    EXPECT_EQ(board(0, 6), enc::Ghost);
    EXPECT_EQ(messageBar.lines[1], "Need health above 0.") << "the turn has scrolled it up";
}

TEST_F(AutoplayerTest, MeetsUnseenWhatAnEyeHidesWhereARefusalTakesNoTurn) {
    allow(griefOn);
    onlyColumns({1, 3, 5});
    board(1, 2) = board(3, 2) = enc::HypnoEye;
    board(1, 6) = board(3, 6) = enc::Skeleton;
    EXPECT_EQ(movesPlayed(), 0);
    EXPECT_EQ(newestMessage(), "Need health above 0.");
    board(3, 6) = enc::Meat;
    EXPECT_EQ(movesPlayed({keycode::space}), 1);
    EXPECT_EQ(column(3).drawn, 1);
    EXPECT_GE(count(health), 3);
}

TEST_F(AutoplayerTest, SpendsWeaponsOnGriefBeforeItIsMetAndSweepsWithThem) {
    onlyColumns({1, 2});
    board(0, 6) = enc::Door;  // its column is finished
    board(1, 6) = enc::TheEnd;
    count(health) = 1000;
    level(thiefProtection) = 95;
    // clang-format off
    const std::array<int, 8> moves[] = {
        // switches                   bottom tile       boost  bolts and bombs before, after  advanced
        {griefOn,                     enc::Thief,       95,    1, 1, 1, 1,                    1},
        {griefOn + spellsOn + easyOn, enc::Skeleton,    95,    1, 1, 1, 1,                    1},
        {griefOn + spellsOn,          enc::MasterThief, 95,    1, 1, 0, 1,                    0},
        {griefOn + spellsOn,          enc::MasterThief, 95,    0, 1, 0, 0,                    0},
        {griefOn + spellsOn,          enc::MasterThief, 95,    0, 0, 0, 0,                    1},
        {griefOn + spellsOn,          enc::DoubleDoor,   0,    2, 2, 2, 1,                    0},  // no chance
        {griefOn + spellsOn,          enc::DoubleDoor,   1,    2, 2, 1, 2,                    0},
        {griefOn + spellsOn,          enc::Chest,       95,    2, 2, 2, 1,                    0},  // nor ever
    };
    // clang-format on
    for (const auto& [switches, code, boost, bolts, bombsBefore, boltsLeft, bombsLeft, advanced] : moves) {
        allow(switches);
        fillColumn(2, enc::Door);
        board(2, 6) = code;
        column(2).drawn = 0;
        level(lightningBoost) = boost;
        count(lightningBolts) = bolts;
        count(bombs) = bombsBefore;
        EXPECT_EQ(movesPlayed({keycode::space}), 1);
        EXPECT_EQ((std::array{count(lightningBolts), count(bombs), column(2).drawn, board(0, 6)}),
                  (std::array{boltsLeft, bombsLeft, advanced, +enc::Door}));
    }
    allow(spellsOn);
    board(2, 6) = enc::DoubleDoor;
    EXPECT_EQ(movesPlayed(), 0) << "no sweep without grief";
}

}  // namespace gloomdeck
