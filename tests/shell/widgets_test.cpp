// The hit test, wrapped text, and cutting the picture strips.
#include <filesystem>

#include "platform/draw.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/palette.h"
#include "shell/board_view.h"
#include "shell/hit_test.h"
#include "shell/layout.h"
#include "shell/panels.h"
#include "shell/places.h"
#include "shell/tile_set.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

// The text of a row of character cells in the default colour; '?' is no glyph.
std::string textRow(int y) {
    std::string text;
    for (int x = 0; x + glyphSize <= frameWidth; x += glyphSize) {
        char found = '?';
        for (char c = ' '; c <= '~'; ++c)
            if (textStandsAt(x, y, std::string(1, c), colour::text)) found = c;
        text += found;
    }
    return text.erase(text.find_last_not_of(' ') + 1);
}

// The first lines of a text as it is wrapped, joined by bars.
std::string wrapped(const std::string& text, int width, int lines) {
    clearScreen();
    drawWrappedText(text, 0, 3, width, 10);
    std::string all;
    for (int i = 0; i < lines; ++i) all += textRow(3 + 10 * i) + "|";
    return all;
}

Image cellImage(int col, int row) {
    Image image = createImage(tile::size, tile::size);
    const Rect r = boardGrid.cell(col, row);
    getImage(screen(), r.x1, r.y1, r.x2, r.y2, image);
    return image;
}

}  // namespace

class WidgetsTest : public GameTest {};

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
    hitTest(exit, exit.x, exit.y, Phase::press);
    EXPECT_EQ(pixelAt(exit.x + 62, exit.y + 10), colour::pressedFace);
    EXPECT_NE(pixelAt(exit.x + 64, exit.y + 10), colour::pressedFace) << "the outline stays";
    exit.hidden = true;
    for (const Phase phase : {Phase::press, Phase::release, Phase::hover})
        EXPECT_EQ(hitTest(exit, 340, 470, phase), 0);
}

TEST_F(WidgetsTest, HoverGlowsOnOneCellAndGivesTheOldOneBackExactly) {
    board(3, 3) = enc::Skeleton;
    drawBoard();
    fillBox(110, 140, 112, 142, 0xFF123456);  // something that no redraw of the cell would bring back
    Button& grid = widget(id::board);
    const Image before = cellImage(3, 3);
    hitTest(grid, 104, 136, Phase::hover);
    const Image glowing = cellImage(3, 3);
    EXPECT_NE(glowing.pixels, before.pixels);
    hitTest(grid, 135, 167, Phase::hover);
    EXPECT_EQ(cellImage(3, 3).pixels, glowing.pixels) << "the same cell glows once";
    ui.targetMode = target::bomb;
    hitTest(grid, 136, 167, Phase::hover);
    EXPECT_EQ(cellImage(3, 3).pixels, before.pixels);
    EXPECT_EQ(pixelAt(152, 152), flatColour(tile::bomb)) << "the mode's icon on the target";
    leaveHover(grid);
    EXPECT_EQ(grid.hoverCol, -1);
    EXPECT_EQ(pixelAt(152, 152), flatColour(tile::empty));
    for (const int y : {168, 200}) hitTest(widget(id::stats), 260, y, Phase::hover);
    EXPECT_EQ(pixelAt(260, 184), flatColour(tile::lightning)) << "the row that was left";
    EXPECT_NE(pixelAt(260, 216), flatColour(tile::sun));
}

TEST_F(WidgetsTest, WrappedTextBreaksBetweenWordsAndAtBackslashesAndBulletItemsIndentUntilThen) {
    EXPECT_EQ(wrapped("one two three", 7, 3), "one two|three||");
    EXPECT_EQ(wrapped("a\\b\\\\c", 9, 5), "a|b||c||");
    EXPECT_EQ(wrapped("  lead and trail  ", 8, 3), "lead|and|trail|");
    EXPECT_EQ(wrapped("", 5, 1), "|");
    EXPECT_EQ(wrapped("unbreakable", 4, 4), "unbr|eaka|ble||") << "a word longer than the line is split";
    EXPECT_EQ(wrapped("* one two three four\\five six", 9, 5), "* one two|  three|  four|five six||");
    EXPECT_EQ(wrapped("*item\\* other item here", 12, 3), "*item|* other item|  here|");
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
