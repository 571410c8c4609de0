// What happens while an action runs: impatient clicks, keys, and stopping the autoplayer.
#include <memory>

#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

// Calls back once, in that pause of an action.
Script::Step inPause(int number, Script::Step step) {
    return [=](InputQueue&) {
        script::feedWhenPausing([left = number, step](InputQueue& queue) mutable {
            if (queue.paused && --left == 0) step(queue);
            return true;
        });
    };
}

Script::Step typing(std::string_view text) {
    return [=](InputQueue& queue) {
        for (const char c : text) keyTyped(queue, std::string(1, c));
    };
}

// A thing to meet that pauses for long at the speed "Normal": a cave unveils what is in it.
void makeCaves() {
    giveHero(100);
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < rowCount; ++row) cell(col, row) = enc::Cave;
}

class PacingTest : public PlayTest {
  protected:
    void SetUp() override {
        PlayTest::SetUp();
        removePictures();
        script.startScenario(0).check(makeCaves);
    }

    void finish() { EXPECT_EQ(run(script.closeWindow()), 0); }

    Script script;
};

}  // namespace

TEST_F(PacingTest, ImpatientClicksDuringAnActionSpendOneMove) {
    script.then(inPause(5, [](InputQueue& queue) {
        for (int col = 1; col < columnCount; ++col) clickAt(queue, boardCell(col, bottomRow));
    }));
    script.click(boardCell(0, bottomRow)).check([] {
        EXPECT_EQ(game.turns, 2);
        EXPECT_NE(board(6, bottomRow), enc::Cave) << "the last click counts";
    });
    finish();
}

TEST_F(PacingTest, AnImpatientClickMayEndInAButton) {
    script.then(inPause(5, [](InputQueue& queue) {
        for (int i = 0; i < 3; ++i) clickAt(queue, boardCell(3, bottomRow));
        clickAt(queue, widgetCentre(id::help));
    }));
    script.click(boardCell(0, bottomRow)).screen("Help").key("q");
    script.check([] { EXPECT_EQ(game.turns, 1); });
    finish();
}

TEST_F(PacingTest, KeysTypedDuringAnActionActAfterItOneAPass) {
    script.then(inPause(5, typing("+P++qR")));
    script.click(boardCell(0, bottomRow)).key("n").screen("Gloomdeck 1.2").check([] {
        EXPECT_EQ(prefs.GameSpeed, 5);
        EXPECT_EQ(game.turns, 1);
    });
    finish();
}

TEST_F(PacingTest, AKeyCutsLongPausesShort) {
    const auto castSun = [this](const Script::Step& step) {
        long slept = 0;
        Script run = script;
        run.check(makeEmptyBoard).then(inPause(3, step)).check([&] { slept = script::sleptMilliseconds(); });
        run.click(statsCell(suns)).check([&] { slept = script::sleptMilliseconds() - slept; });
        EXPECT_EQ(firstRun(run.closeWindow()), 0);
        return slept;
    };
    const long whole = castSun([](InputQueue&) {});
    const long cut = castSun(typing("z"));
    EXPECT_GE(whole, 1000);
    EXPECT_LT(cut, 600);
}

class AutoplayerStopTest : public PacingTest {
  protected:
    // Switches all five kinds of moves on; the run starts when the preferences are left.
    static void startRun(Script& run) {
        run.key("P");
        for (int row = 0; row < 5; ++row) run.button(id::toggle + row);
        run.key("q");
    }

    // The move under way and the one that was chosen after it are played.
    void expectStopBy(const Script::Step& step) {
        Script run = script;
        run.then(inPause(20, step));
        startRun(run);
        const auto stopped = [] { EXPECT_EQ(game.turns, 2); };
        run.check(stopped).release(boardCell(3, bottomRow)).check(stopped);
        EXPECT_EQ(firstRun(run.closeWindow()), 0);
    }
};

TEST_F(AutoplayerStopTest, ARunStartsWhenThePreferencesAreLeftAndPlaysTheBoard) {
    script.hurry().check([] { prefs.GameSpeed = speedCount - 1; });
    startRun(script);
    script.check([] { EXPECT_TRUE(prefs.scenarioOver); });
    finish();
}

TEST_F(AutoplayerStopTest, KeysAndClicksStopTheRun) {
    for (const char* key : {" ", "\x1B", "\r"}) expectStopBy(typing(key));
    expectStopBy([](InputQueue& queue) { clickAt(queue, boardCell(3, bottomRow)); });
    expectStopBy([](InputQueue& queue) {
        pointerMoved(queue, boardCell(3, bottomRow).x, boardCell(3, bottomRow).y);
        buttonChanged(queue, true);
    });
}

TEST_F(AutoplayerStopTest, OtherKeysDoNotStopTheRunAndAreDropped) {
    script.hurry().check([] { prefs.GameSpeed = 5; }).then(inPause(20, typing("zP")));
    startRun(script);
    script.screen("Gloomdeck 1.2").check([] { EXPECT_TRUE(prefs.scenarioOver); });
    finish();
}

TEST_F(AutoplayerStopTest, ACloseRequestStopsTheRunAndEndsTheProgram) {
    script.then(inPause(20, closeRequested));
    startRun(script);
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(game.turns, 2);
}

}  // namespace gloomdeck
