// What happens while an action runs: impatient clicks, keys, and stopping the autoplayer.
#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

// Calls back once, in that pause of an action.
static Script::Step inPause(int number, const Script::Step& step) {
    return [=](InputQueue&) {
        script::feedWhenPausing([left = number, step](InputQueue& queue) mutable {
            if (queue.paused && --left == 0) step(queue);
            return true;
        });
    };
}

static Script::Step typing(std::string_view text) {
    return [=](InputQueue& queue) {
        for (const char c : text) keyTyped(queue, std::string(1, c));
    };
}

class PacingTest : public QuickPlayTest {
  protected:
    // Caves take long: what is in them is unveiled row by row.
    void SetUp() override {
        QuickPlayTest::SetUp();
        script.startScenario(0).check([] {
            giveHero(100);
            fillBoard(enc::Cave);
        });
    }

    // Switches all five kinds of moves on; the run starts when the preferences are left.
    static Script& startAutoplayer(Script& player, const Script::Step& step) {
        player.then(inPause(20, step)).key("P");
        for (int row = 0; row < 5; ++row) player.button(id::toggle + row);
        return player.key("q");
    }
};

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
    script.then(inPause(5, typing("+P++qR"))).click(boardCell(0, bottomRow)).key("n");
    script.screen("Gloomdeck 1.2").check([] {
        EXPECT_EQ(std::pair(prefs.GameSpeed, game.turns), std::pair(5, 1));
    });
    finish();
}

TEST_F(PacingTest, TheAutoplayerStartsWhenThePreferencesAreLeftAndPlaysTheBoard) {
    script.hurry().check([] { prefs.GameSpeed = speedCount - 1; });
    startAutoplayer(script, typing("zP")).screen("Gloomdeck 1.2");
    script.check([] { EXPECT_TRUE(prefs.scenarioOver) << "other keys stopped it"; });
    finish();
}

TEST_F(PacingTest, KeysClicksAndACloseRequestStopTheAutoplayer) {
    const Point tile = boardCell(3, bottomRow);
    const auto click = [=](InputQueue& queue) { clickAt(queue, tile); };
    const auto hold = [=](InputQueue& queue) { pointAt(queue, tile, {true}); };
    const auto stopped = [] { EXPECT_EQ(game.turns, 2) << "the move under way and the one chosen after it"; };
    for (const Script::Step& step :
         {typing(" "), typing("\x1B"), typing("\r"), Script::Step(click), Script::Step(hold)}) {
        Script player = script;
        startAutoplayer(player, step).check(stopped).release(tile).check(stopped);
        EXPECT_EQ(firstRun(player.closeWindow()), 0);
    }
    EXPECT_EQ(firstRun(startAutoplayer(script, closeRequested)), 0);
    stopped();
}

}  // namespace gloomdeck
