// Buttons, menus, the hit test and wrapped text.
#include "platform/draw.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "shell/board_view.h"
#include "shell/hit_test.h"
#include "shell/layout.h"
#include "shell/menus.h"
#include "shell/palette.h"
#include "shell/panels.h"
#include "shell/places.h"
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

TEST_F(WidgetsTest, WidgetsOfAScreenLieInsideTheLayoutAndHitThemselvesAlone) {
    for (const int screenId :
         {screen_id::selection, screen_id::play, screen_id::preferences, screen_id::training})
        for (const int widgetId : pressOrder(screenId)) {
            const Button& b = widget(widgetId);
            EXPECT_TRUE(b.x >= 0 && b.y >= 0 && b.x + b.width <= 400 && b.y + b.height <= 480) << widgetId;
            if (b.hidden) continue;  // Continue lies over the board
            for (const int other : pressOrder(screenId))
                EXPECT_EQ(hitTest(widget(other), b.x + b.width - 1, b.y + b.height - 1, Phase::press) != 0,
                          other == widgetId)
                    << widgetId << " and " << other;
        }
}

TEST_F(WidgetsTest, CaptionsStandOnEvenHalvesWithTheHotKeyInYellow) {
    Button& exit = widget(id::exit);
    drawButton(exit);
    EXPECT_TRUE(textStandsAt(354, 469, "E", colour::yellow));
    EXPECT_TRUE(textStandsAt(362, 469, "xit", colour::edge));
    EXPECT_EQ(pixelAt(400, 480), colour::edge);
    EXPECT_EQ(pixelAt(401, 481), colour::black) << "the shadow";
    eraseButton(exit);
    EXPECT_EQ(pixelAt(401, 481), colour::panel);
    EXPECT_EQ(hitTest(exit, 340, 470, Phase::press), 1) << "erased is not hidden";
    exit.hidden = true;
    for (const Phase phase : {Phase::press, Phase::release, Phase::hover})
        EXPECT_EQ(hitTest(exit, 340, 470, phase), 0);
    showButton(exit, "");
    EXPECT_TRUE(!exit.hidden && exit.caption == "Exit");
}

TEST_F(WidgetsTest, TheSelectedMenuItemIsLightWithDarkText) {
    drawTabs(0);
    EXPECT_TRUE(pixelAt(10, 22) == colour::edge && textStandsAt(15, 13, "Campaign", colour::face));
    EXPECT_TRUE(pixelAt(90, 22) == colour::face && textStandsAt(93, 13, "Scenario", colour::edge));
    constexpr std::array<std::string_view, 3> items{"a", "b", "odd"};
    drawHelpMenu(items, 2);
    EXPECT_TRUE(textStandsAt(36, 57, "odd", colour::face)) << "half a pixel goes to the even place";
}

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
    Button& help = widget(id::help);
    hitTest(help, help.x, help.y, Phase::press);
    EXPECT_EQ(pixelAt(help.x + 62, help.y + 15), colour::pressedFace);
    EXPECT_NE(pixelAt(help.x + 63, help.y + 16), colour::pressedFace) << "the outline stays";
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

TEST_F(WidgetsTest, WrappedTextBreaksBetweenWordsAndAtBackslashes) {
    EXPECT_EQ(wrapped("one two three", 7, 3), "one two|three||");
    EXPECT_EQ(wrapped("a\\b\\\\c", 9, 5), "a|b||c||");
    EXPECT_EQ(wrapped("  lead and trail  ", 8, 3), "lead|and|trail|");
    EXPECT_EQ(wrapped("", 5, 1), "|");
    EXPECT_EQ(wrapped("unbreakable", 4, 4), "unbr|eaka|ble||") << "a word longer than the line is split";
}

TEST_F(WidgetsTest, BulletItemsIndentTheirContinuationUntilAForcedBreak) {
    EXPECT_EQ(wrapped("* one two three four\\five six", 9, 5), "* one two|  three|  four|five six||");
    EXPECT_EQ(wrapped("*item\\* other item here", 12, 3), "*item|* other item|  here|");
}

TEST_F(WidgetsTest, PanelsReachTheFramesEdgesAndTextsTheirPlaces) {
    drawHeaderBar(50);
    EXPECT_EQ(pixelAt(407, 50), colour::panel);
    EXPECT_EQ(pixelAt(407, 51), colour::white);
    EXPECT_EQ(pixelAt(407, 487), pixelAt(200, 200)) << "the background";
    centredText("odd", 100, 200);
    EXPECT_TRUE(textStandsAt(88, 200, "odd", colour::text));
    for (const int height : {13, 14}) {
        drawBoardLabel("Label", 20, height);
        EXPECT_TRUE(textStandsAt(16, height == 13 ? 62 : 72, "Label", colour::text));
        EXPECT_EQ(pixelAt(231, 59 + height), colour::panel);
        EXPECT_NE(pixelAt(231, 60 + height), colour::panel);
    }
}

}  // namespace gloomdeck
