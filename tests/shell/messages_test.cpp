// The message bar's lines, the game speed, waiting for the player, wrapped text, and cutting picture strips.
#include <filesystem>

#include "platform/clock.h"
#include "platform/draw.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "rules/show.h"
#include "shell/widgets/pacing.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/tile_set.h"
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

    // The text is drawn in just those lines.
    static void expectLines(const std::string& text, int width, const std::vector<std::string>& lines) {
        clearScreen();
        drawWrappedText(text, 0, 0, width, glyphSize);
        for (std::size_t i = 0; i <= lines.size(); ++i) {
            std::string line = i < lines.size() ? lines[i] : "";
            line.resize(frameWidth / glyphSize, ' ');
            EXPECT_TRUE(textStandsAt(0, glyphSize * static_cast<int>(i), line, colour::text)) << line;
        }
    }
};

TEST_F(MessagesTest, FourMessagesStandTrimmedAndCutAndAnEmptyTextOnlyRedrawsThem) {
    const Image blank = screen();
    ShowMessage("   ", 0);
    EXPECT_EQ(screen().pixels, blank.pixels) << "nothing to scroll, nothing drawn";
    for (const char* text : {"one", "two", " three ", "four", " "}) ShowMessage(text, 0);
    EXPECT_EQ(messageBar.lines, (std::array<std::string, 4>{"", "four", "three", "two"}));
    ShowMessage("  " + std::string(60, 'x'), 0);
    EXPECT_EQ(newestMessage(), std::string(47, 'x'));
    EXPECT_EQ(script::toldText(), newestMessage()) << "readers who do not see it are told";
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

TEST_F(MessagesTest, ACloseRequestEndsAWaitAndIsRememberedAndTheSystemsEndStopsIt) {
    waited("", Script().closeWindow());
    EXPECT_EQ(readKey(), keycode::close);
    resetInput();
    waited(" ", Script().closeWindow());
    EXPECT_EQ(readKey(), keycode::close);
    EXPECT_EQ(readKey(), "");
    waited("k", Script().press({300, 300}).then([](InputQueue& queue) { endRequested(queue); }));
    EXPECT_EQ(readKey(), keycode::close);
}

TEST_F(MessagesTest, WrappedTextBreaksBetweenWordsAndAtBackslashesAndBulletItemsIndentUntilThen) {
    expectLines("one two three", 7, {"one two", "three"});
    expectLines(R"(a\b\\c)", 9, {"a", "b", "", "c"});
    expectLines("  lead and trail  ", 8, {"lead", "and", "trail"});
    expectLines("", 5, {});
    expectLines("unbreakable", 4, {"unbr", "eaka", "ble"});
    expectLines("* one two three four\\five six", 9, {"* one two", "  three", "  four", "five six"});
    expectLines("* ab cdefghi jkl mno", 9, {"* ab", "  cdefghi", "  jkl", "  mno"});
    expectLines("*item\\* other item here", 12, {"*item", "* other item", "  here"});
}

TEST_F(MessagesTest, AMissingStripLeavesItsTilesTransparentAndTheLastTileIsBeyondTheStrip) {
    const std::string folder = makeProgramFolder();
    script::setFolder(folder);
    std::filesystem::remove(folder + "/gfx/dtiles2.bmp");
    loadTiles();
    const Image nothing = createImage(tile::size, tile::size);
    EXPECT_EQ(script::warnings(),
              std::vector{"the picture " + folder + "/gfx/dtiles2.bmp is missing; put it there again"});
    for (const int number : {1, 49, 99, 147})
        EXPECT_EQ(tileImage(number).pixels[16 * 33], flatColour(number));
    for (const int number : {50, 98, 148}) EXPECT_EQ(tileImage(number).pixels, nothing.pixels);
    EXPECT_TRUE(tileImage(149).pixels.empty());
}

}  // namespace gloomdeck
