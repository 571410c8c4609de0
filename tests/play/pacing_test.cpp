// What happens while an action runs: impatient clicks, keys, and stopping the autoplayer.
#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

// Calls back once, in that pause of an action.
Script::Step inPause(int number, const Script::Step& step) {
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

// Caves take long: what is in them is unveiled row by row.
void makeCaves() {
    giveHero(100);
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < rowCount; ++row) cell(col, row) = enc::Cave;
}

class PacingTest : public QuickPlayTest {
  protected:
    void SetUp() override {
        QuickPlayTest::SetUp();
        script.startScenario(0).check(makeCaves);
    }

    // Switches all five kinds of moves on; the run starts when the preferences are left.
    static Script& startAutoplayer(Script& run) {
        run.key("P");
        for (int row = 0; row < 5; ++row) run.button(id::toggle + row);
        return run.key("q");
    }

    // The move under way and the one that was chosen after it are played.
    void expectStopBy(const Script::Step& step) {
        const auto stopped = [] { EXPECT_EQ(game.turns, 2); };
        Script run = script;
        startAutoplayer(run.then(inPause(20, step))).check(stopped).release(boardCell(3, bottomRow));
        EXPECT_EQ(firstRun(run.check(stopped).closeWindow()), 0);
    }
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
    EXPECT_GE(castSun([](InputQueue&) {}), 1000);
    EXPECT_LT(castSun(typing("z")), 600);
}

TEST_F(PacingTest, TheAutoplayerStartsWhenThePreferencesAreLeftAndPlaysTheBoard) {
    script.hurry().check([] { prefs.GameSpeed = speedCount - 1; });
    startAutoplayer(script.then(inPause(20, typing("zP")))).screen("Gloomdeck 1.2").check([] {
        EXPECT_TRUE(prefs.scenarioOver) << "other keys stopped it";
    });
    finish();
}

TEST_F(PacingTest, KeysClicksAndACloseRequestStopTheAutoplayer) {
    for (const char* key : {" ", "\x1B", "\r"}) expectStopBy(typing(key));
    expectStopBy([](InputQueue& queue) { clickAt(queue, boardCell(3, bottomRow)); });
    expectStopBy([](InputQueue& queue) {
        pointerMoved(queue, 20, boardCell(0, bottomRow).y);
        buttonChanged(queue, true);
    });
    EXPECT_EQ(firstRun(startAutoplayer(script.then(inPause(20, closeRequested)))), 0);
    EXPECT_EQ(game.turns, 2);
}

}  // namespace gloomdeck
