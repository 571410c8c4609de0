// The hit test, wrapped text, and cutting the picture strips.
#include <filesystem>

#include "platform/draw.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "shell/hit_test.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/panels.h"
#include "shell/tile_set.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

class WidgetsTest : public GameTest {
  protected:
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

TEST_F(WidgetsTest, APressTakesTheCellByItsFloorAndAReleaseCountsInThatCellOnly) {
    Button& grid = widget(id::board);
    EXPECT_EQ(hitTest(grid, 8 + 32 * 2 + 31, 40 + 32 * 3 + 31, Phase::press), 1);
    for (const Point out : {Point{7, 40}, Point{8, 39}, Point{232, 100}, Point{100, 264}, Point{-1, -1}})
        EXPECT_EQ(hitTest(grid, out.x, out.y, Phase::press), 0);
    EXPECT_TRUE(grid.pressCol == 2 && grid.pressRow == 3);
    for (const Point in : {Point{72, 136}, Point{103, 167}})
        EXPECT_EQ(hitTest(grid, in.x, in.y, Phase::release), 1);
    for (const Point out : {Point{71, 140}, Point{104, 140}, Point{80, 135}, Point{80, 168}, Point{-1, -1}})
        EXPECT_EQ(hitTest(grid, out.x, out.y, Phase::release), 0);
    Button& exit = widget(id::exit);
    exit.hidden = true;
    for (const Phase phase : {Phase::press, Phase::release, Phase::hover})
        EXPECT_EQ(hitTest(exit, exit.x, exit.y, phase), 0);
}

TEST_F(WidgetsTest, WrappedTextBreaksBetweenWordsAndAtBackslashesAndBulletItemsIndentUntilThen) {
    expectLines("one two three", 7, {"one two", "three"});
    expectLines("a\\b\\\\c", 9, {"a", "b", "", "c"});
    expectLines("  lead and trail  ", 8, {"lead", "and", "trail"});
    expectLines("", 5, {});
    expectLines("unbreakable", 4, {"unbr", "eaka", "ble"});
    expectLines("* one two three four\\five six", 9, {"* one two", "  three", "  four", "five six"});
    expectLines("*item\\* other item here", 12, {"*item", "* other item", "  here"});
}

TEST_F(WidgetsTest, AMissingStripLeavesItsTilesTransparentAndTheLastTileIsBeyondTheStrip) {
    const std::string folder = makeProgramFolder();
    script::setFolder(folder);
    std::filesystem::remove(folder + "/gfx/dtiles2.bmp");
    loadTiles();
    const Image nothing = createImage(tile::size, tile::size);
    for (const int number : {1, 49, 99, 147})
        EXPECT_EQ(tileImage(number).pixels[16 * 33], flatColour(number));
    for (const int number : {50, 98, 148}) EXPECT_EQ(tileImage(number).pixels, nothing.pixels);
    EXPECT_TRUE(tileImage(149).pixels.empty());
}

}  // namespace gloomdeck
