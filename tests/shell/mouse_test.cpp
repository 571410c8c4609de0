// The mouse handler, what clicks mean, and the hover descriptions.
#include "shell/mouse.h"

#include "platform/frame.h"
#include "platform/input.h"
#include "shell/board_view.h"
#include "shell/describe.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "tests/support/script.h"

namespace gloomdeck {

class MouseTest : public GameTest {
  protected:
    static int moveTo(Point at) {
        pointerMoved(inputQueue(), at.x, at.y);
        return handleMouse();
    }
    static int change(Point at, bool down) {
        pointerMoved(inputQueue(), at.x, at.y);
        buttonChanged(inputQueue(), down);
        return handleMouse();
    }
    static int press(Point at) { return change(at, true); }
    static int release(Point at) { return change(at, false); }
    static int leave() {
        pointerLeft(inputQueue());
        return handleMouse();
    }
    static std::vector<Colour> boardPixels() {
        Image image = createImage(columnCount * tile::size, rowCount * tile::size);
        const Rect& area = boardGrid.area();
        getImage(screen(), area.x1, area.y1, area.x2, area.y2, image);
        return image.pixels;
    }
    static bool describes(std::string_view text) { return textStandsAt(15, 406, text, colour::text); }
};

TEST_F(MouseTest, AButtonClicksWhenPressAndReleaseLieOnItAndElseLooksAsBefore) {
    for (const int button : {id::help, id::prefs}) drawButton(widget(button));
    const Image before = screen();
    press(widgetCentre(id::help));
    EXPECT_NE(screen().pixels, before.pixels);
    EXPECT_EQ(release(widgetCentre(id::help)), 1);
    EXPECT_EQ(clickedButton, id::help);
    press(widgetCentre(id::help));
    EXPECT_EQ(release(widgetCentre(id::prefs)), 0);
    EXPECT_EQ(clickedButton, -1);
    press(widgetCentre(id::help));
    EXPECT_EQ(leave(), 0);
    EXPECT_EQ(screen().pixels, before.pixels);
    release({300, 20});
    press({300, 20});
    EXPECT_EQ(release(widgetCentre(id::help)), 0) << "pressed on nothing";
}

TEST_F(MouseTest, APressBelongsToTheScreenItBeganOn) {
    press(widgetCentre(id::help));
    startScreenPress();
    EXPECT_EQ(release(widgetCentre(id::help)), 0);
    press(boardCell(2, 5));
    restartPress();
    moveTo(widgetCentre(id::exit));
    EXPECT_EQ(pressedWidget, notPressed) << "still the old press";
    release(widgetCentre(id::exit));
    EXPECT_EQ(press(widgetCentre(id::exit)) + release(widgetCentre(id::exit)), 1);
    drawBoard();
    const auto before = boardPixels();
    press(boardCell(2, 5));
    dropPress();
    EXPECT_EQ(boardPixels(), before);
    EXPECT_EQ(pressedWidget, pressedNothing);
}

TEST_F(MouseTest, ABoardClickMeetsTheBottomTileOfAnOpenColumnAndElseOnlyRedraws) {
    board(2, 5) = board(2, 6) = board(3, 6) = enc::Door;
    count(keys) = 5;
    column(3).finished = 1;
    drawBoard();
    const auto before = boardPixels();
    const auto drag = [](Point from, Point to) { return press(from) + release(to); };
    moveTo(boardCell(1, 4));
    EXPECT_EQ(drag(boardCell(2, 6), boardCell(3, 6)), 0);
    EXPECT_EQ(boardPixels(), before) << "no glow is left where the pointer came from either";
    EXPECT_EQ(press(boardCell(2, 6)) + leave() + release({300, 20}), 0);
    EXPECT_EQ(boardPixels(), before);
    EXPECT_EQ(drag(boardCell(2, 5), boardCell(2, 5)) + drag(boardCell(3, 6), boardCell(3, 6)), 0);
    EXPECT_EQ(count(keys), 5);
    seedRolls(1);
    EXPECT_EQ(drag(boardCell(2, 6), boardCell(2, 6)), 1);
    EXPECT_EQ(count(keys), 4);
}

TEST_F(MouseTest, AStatsPressCountsWhereverItEnds) {
    count(bombs) = 1;
    press(statsCell(bombs));
    EXPECT_EQ(leave(), 0);
    EXPECT_EQ(ui.targetMode, target::bomb);
    moveTo(widgetCentre(id::exit));
    EXPECT_EQ(pressedWidget, notPressed) << "coming back with the button down is no press";
    release(widgetCentre(id::exit));
    leave();
    press(statsCell(bombs));
    EXPECT_EQ(pressedWidget, id::stats) << "a press may come with the return";
    EXPECT_EQ(release({300, 20}), 0);
    EXPECT_EQ(ui.targetMode, target::none);
}

TEST_F(MouseTest, HoverDescribesAndLeavesCleanAlsoWhenItJumpsBetweenTheGridsUntilTheScenarioIsOver) {
    board(2, 5) = enc::Skeleton;
    drawBoard();
    moveTo(boardCell(2, 5));
    EXPECT_TRUE(describes("Skeleton"));
    EXPECT_EQ(script::toldText(), "Skeleton");
    moveTo(statsCell(gold));
    EXPECT_TRUE(describes("Gold: "));
    EXPECT_TRUE(script::toldText().starts_with("Gold: "));
    EXPECT_EQ(widget(id::board).hoverCol, -1);
    moveTo(boardCell(2, 5));
    EXPECT_TRUE(describes("Skeleton"));
    EXPECT_EQ(widget(id::stats).hoverCol, -1);
    moveTo({300, 20});
    EXPECT_FALSE(describes("Skeleton"));
    EXPECT_EQ(pixelAt(boardCell(2, 5).x, boardCell(2, 5).y), flatColour(tile::skeleton));
    prefs.scenarioOver = 1;
    const Image before = screen();
    for (const Point at : {boardCell(2, 6), statsCell(gold)}) {
        moveTo(at);
        press(at);
        EXPECT_EQ(pressedWidget, pressedNothing);
        release(at);
    }
    EXPECT_EQ(screen().pixels, before.pixels);
}

TEST_F(MouseTest, DescriptionsAddSkillsCoverWhatIsImpossibleAndKeepSecrets) {
    board(1, 1) = enc::Skeleton;
    board(1, 2) = enc::HypnoEye;
    board(1, 3) = enc::Door;
    level(shieldBoost) = 7;
    describeBoardCell(1, 1);
    EXPECT_TRUE(textStandsAt(143, 406, "57%", colour::text));
    EXPECT_EQ(pixelAt(287, 432), flatColour(tile::bomb));
    describeBoardCell(1, 0);
    EXPECT_EQ(pixelAt(287, 432), flatColour(tile::cover)) << "nothing to blow up";
    describeBoardCell(1, 3);
    EXPECT_TRUE(describes("This space is hidden by a Hypno Eye."));
    turnsLeft(magicSight) = 1;
    describeBoardCell(1, 3);
    EXPECT_TRUE(describes("Door"));
    EXPECT_EQ(pixelAt(191, 432), flatColour(tile::cover)) << "no sun clears a door";
    column(1).drawn = 57;
    describeBoardCell(1, 3);
    EXPECT_TRUE(describes("You have finished this column."));
}

TEST_F(MouseTest, AnEyeHidesWhatLiesBelowAndItsBeamEndsByTheRoll) {
    board(1, 2) = board(1, 4) = enc::HypnoEye;
    board(1, 5) = enc::Gold;
    for (const auto& [roll, end] : {std::pair{1, 42}, {2, 42}, {3, 44}, {30, 70}}) {
        rolls({{30, roll}});
        drawColumn(1);
        for (int x = 40; x < 72; ++x)
            EXPECT_EQ(pixelAt(x, 263) == colour::brown, std::abs(x - end) <= 1) << roll;
    }
    for (const int row : {3, 4, 5, 6})
        EXPECT_EQ(pixelAt(43, 40 + 32 * row + 3), flatColour(tile::cellar)) << row;
    turnsLeft(magicSight) = 1;
    drawColumn(1);
    EXPECT_EQ(pixelAt(43, 40 + 32 * 5 + 3), flatColour(tile::gold));
}

}  // namespace gloomdeck
