// The message bar, the game speed, and waiting for the player.
#include "platform/clock.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "shell/board_view.h"
#include "shell/long_message.h"
#include "shell/pacing.h"
#include "shell/palette.h"
#include "tests/support/script.h"

namespace gloomdeck {

class MessagesTest : public GameTest {
  protected:
    // Seconds that the wait takes with the script as its player.
    static double waited(const std::string& key, const Script& player) {
        const double before = timer();
        startScript(player);
        waitForAck(key);
        finishScript();
        return timer() - before;
    }
};

TEST_F(MessagesTest, FourMessagesStandTheNewestBelowInYellowAndAnEmptyTextOnlyRedrawsThem) {
    const Image blank = screen();
    ShowMessage("   ", 0);
    EXPECT_EQ(screen().pixels, blank.pixels) << "nothing to scroll, nothing drawn";
    for (const char* text : {"one", "two", " three ", "four", " "}) ShowMessage(text, 0);
    EXPECT_EQ(messageBar.lines, (std::array<std::string, 4>{"", "four", "three", "two"}));
    ShowMessage("  " + std::string(60, 'x'), 0);
    EXPECT_EQ(newestMessage(), std::string(47, 'x'));
    EXPECT_EQ(script::toldText(), newestMessage()) << "readers who do not see it are told";
    EXPECT_TRUE(textStandsAt(16, 375, newestMessage(), colour::yellow));
    EXPECT_TRUE(textStandsAt(16, 355, "four", colour::text));
    EXPECT_TRUE(textStandsAt(16, 345, "three", colour::text));
    const Image bar = screen();
    screen() = blank;
    ShowMessage("", 1);
    EXPECT_EQ(screen().pixels, bar.pixels);
    EXPECT_FALSE(ui.messagePosted) << "nor is it the turn's message";
}

TEST_F(MessagesTest, DelaysFollowTheSpeedAndRoundHalvesToEven) {
    // clang-format off
    for (const auto& [speed, n, milliseconds] : {std::array
             {0, 20, 60}, {1, 20, 40}, {2, 20, 20}, {3,  5, 2}, {3,    7, 4}, { 4,  5, 2}, { 4,  9,  3},
             {5, 15,  2}, {5, 25,  2}, {5, 26,  3}, {6, 50, 0}, {6, 5000, 0}, {99, 50, 0}, {-1, 10, 30}}) {
        // clang-format on
        prefs.GameSpeed = speed;
        const long before = script::sleptMilliseconds();
        Delay(n);
        EXPECT_EQ(script::sleptMilliseconds() - before, milliseconds) << speed << ": " << n;
    }
}

TEST_F(MessagesTest, WaitsEndAtTheirKeysAtAClicksReleaseAndTheTitlesByItself) {
    EXPECT_LT(waited("", Script().key("\xFFH")), 1);
    EXPECT_NEAR(waited("", Script().wait(4).press({5, 5}).wait(20).release({5, 5})), 24, 1);
    EXPECT_NEAR(waited("", Script()), 15.05, 0.05);
    for (const char* key : {"k", "\r", "\x1B", " "})
        EXPECT_GT(waited("k", Script().key("x").wait(99).key(key)), 99);
    EXPECT_GT(waited("k", Script().press({300, 300}).wait(50).leave()), 50) << "leaving ends the press";
}

TEST_F(MessagesTest, ACloseRequestDuringAWaitIsRememberedAndTheSystemsEndStopsIt) {
    waited("", Script().closeWindow());
    EXPECT_EQ(readKey(), keycode::close);
    resetInput();
    waited(" ", Script().closeWindow().wait(5).closeWindow().key(" "));
    EXPECT_EQ(readKey(), keycode::close);
    EXPECT_EQ(readKey(), "");
    waited("k", Script().press({300, 300}).then([](InputQueue& queue) { endRequested(queue); }));
    EXPECT_EQ(readKey(), keycode::close);
}

TEST_F(MessagesTest, AStoryStandsOverTheBoardWhichComesBackExactly) {
    drawBoard();
    const Image before = screen();
    const auto look = [] {
        EXPECT_TRUE(textStandsAt(16, 48, "A dark and stormy night in", colour::text));
        EXPECT_TRUE(textStandsAt(16, 60, "the dungeon.", colour::text));
    };
    startScript(Script().check(look).key(" "));
    showLongMessage("A dark and stormy night in the dungeon.");
    finishScript();
    EXPECT_EQ(screen().pixels, before.pixels);
}

}  // namespace gloomdeck
