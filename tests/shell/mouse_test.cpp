// The mouse handler, what clicks mean, and the hover descriptions.
#include "shell/mouse.h"

#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "shell/board_view.h"
#include "shell/describe.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "shell/play_clicks.h"
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
    EXPECT_EQ(pressedWidget, pressedNothing);
    EXPECT_EQ(release(widgetCentre(id::help)), 0) << "pressed on nothing";
}

TEST_F(MouseTest, APressBelongsToTheScreenItBeganOn) {
    press(widgetCentre(id::help));
    startScreenPress();
    EXPECT_EQ(release(widgetCentre(id::help)), 0);
    press(boardCell(2, 5));
    restartPress();
    EXPECT_EQ(pressedWidget, notPressed);
    moveTo(widgetCentre(id::exit));
    EXPECT_EQ(pressedWidget, notPressed) << "still the old press";
    release(widgetCentre(id::exit));
    EXPECT_EQ(press(widgetCentre(id::exit)) + release(widgetCentre(id::exit)), 1);
    drawBoard();
    const Image before = screen();
    press(boardCell(2, 5));
    dropPress();
    EXPECT_EQ(screen().pixels, before.pixels);
    EXPECT_EQ(pressedWidget, pressedNothing);
}

TEST_F(MouseTest, ABoardPressReleasedOnANeighbourOnlyRedrawsItsColumn) {
    board(2, 6) = enc::Gold;
    drawBoard();
    const Image before = screen();
    press(boardCell(2, 6));
    EXPECT_EQ(release(boardCell(3, 6)), 0);
    press(boardCell(2, 6));
    EXPECT_EQ(leave(), 0);
    EXPECT_EQ(screen().pixels, before.pixels);
    EXPECT_EQ(count(gold), 0);
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
    EXPECT_EQ(newestMessage(), "Spell canceled.");
    EXPECT_EQ(ui.targetMode, target::none);
}

TEST_F(MouseTest, HoverDescribesAndLeavesCleanAlsoWhenItJumpsBetweenTheGrids) {
    board(2, 5) = enc::Skeleton;
    drawBoard();
    moveTo(boardCell(2, 5));
    EXPECT_TRUE(describes("Skeleton"));
    moveTo(statsCell(gold));
    EXPECT_TRUE(describes("Gold: "));
    EXPECT_EQ(widget(id::board).hoverCol, -1);
    moveTo(boardCell(2, 5));
    EXPECT_TRUE(describes("Skeleton"));
    EXPECT_EQ(widget(id::stats).hoverCol, -1);
    moveTo({300, 20});
    EXPECT_FALSE(describes("Skeleton"));
    EXPECT_EQ(pixelAt(boardCell(2, 5).x, boardCell(2, 5).y), flatColour(tile::skeleton));
}

TEST_F(MouseTest, AfterTheScenarioNeitherGridReacts) {
    prefs.scenarioOver = 1;
    drawBoard();
    const Image before = screen();
    for (const Point at : {boardCell(2, 6), statsCell(gold)}) {
        moveTo(at);
        press(at);
        EXPECT_EQ(pressedWidget, pressedNothing);
        release(at);
    }
    EXPECT_EQ(screen().pixels, before.pixels);
}

TEST_F(MouseTest, MenusAnswerForANewItemAndGoBackToTheirOwnOtherwise) {
    struct Row {
        int screen;
        int widgetId;
        std::int32_t Button::*item;
        Point own;
        Point other;
    };
    for (const Row& row : {Row{screen_id::selection, id::tabs, &Button::pressCol, {10, 10}, {90, 10}},
                           Row{screen_id::selection, id::list, &Button::pressRow, {270, 12}, {270, 32}},
                           Row{screen_id::help, id::helpMenu, &Button::pressRow, {10, 22}, {10, 54}}}) {
        prefs.currentScreen = row.screen;
        EXPECT_EQ(press(row.own) + release(row.own), 0) << row.widgetId;
        EXPECT_EQ(press(row.other) + release(row.other), 1);
        EXPECT_GT(widget(row.widgetId).*row.item, 0);
        EXPECT_EQ(press(row.other) + release(row.own), 0);
        EXPECT_EQ(widget(row.widgetId).*row.item, 0) << "back on its selected item";
    }
}

TEST_F(MouseTest, OnlyBottomTilesOfOpenColumnsAreMet) {
    board(2, 5) = board(2, 6) = board(3, 6) = enc::Door;
    count(keys) = 5;
    column(3).finished = 1;
    EXPECT_EQ(clickBoard(2, 5) + clickBoard(3, 6), 0);
    EXPECT_EQ(count(keys), 5);
    seedRolls(1);
    EXPECT_EQ(clickBoard(2, 6), 1);
    EXPECT_EQ(count(keys), 4);
}

TEST_F(MouseTest, DescriptionsAddSkillsCoverWhatIsImpossibleAndKeepSecrets) {
    board(1, 1) = enc::Skeleton;
    board(1, 2) = enc::HypnoEye;
    board(1, 3) = enc::Door;
    level(shieldBoost) = 7;
    describeBoardCell(1, 1);
    const int chance = encounterType(enc::Skeleton).shieldChance + 7;
    EXPECT_TRUE(textStandsAt(143, 406, std::to_string(chance) + "%", colour::text));
    EXPECT_EQ(pixelAt(287, 432), flatColour(tile::bomb));
    describeBoardCell(1, 0);
    EXPECT_EQ(pixelAt(287, 432), flatColour(tile::cover)) << "nothing to blow up";
    describeBoardCell(1, 2);
    EXPECT_TRUE(describes("Hypno Eye"));
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
    const auto brownEnd = [] {
        int first = 0;
        while (first < frameWidth && pixelAt(first, 263) != colour::brown) ++first;
        EXPECT_EQ(pixelAt(first + 2, 263), colour::brown);
        EXPECT_NE(pixelAt(first + 3, 263), colour::brown);
        return first + 1;
    };
    for (const auto& [roll, end] :
         {std::pair{1, 42}, std::pair{2, 42}, std::pair{3, 44}, std::pair{30, 70}}) {
        rolls({{30, roll}});
        drawColumn(1);
        EXPECT_EQ(brownEnd(), end) << roll;
    }
    for (const int row : {3, 4, 5, 6})
        EXPECT_EQ(pixelAt(43, 40 + 32 * row + 3), flatColour(tile::cellar)) << row;
    turnsLeft(magicSight) = 1;
    drawColumn(1);
    EXPECT_EQ(pixelAt(43, 40 + 32 * 5 + 3), flatColour(tile::gold));
    turnsLeft(magicSight) = 0;
    board(1, 2) = board(1, 4) = enc::Empty;
    board(1, 6) = enc::HypnoEye;
    rolls({{30, 15}});
    drawColumn(1);
    EXPECT_EQ(pixelAt(56, 248), colour::brown) << "a short beam on the bottom row";
}

TEST_F(MouseTest, CountersCoversAndNamesTellHowFarAColumnIs) {
    board(2, 3) = board(2, 4) = enc::Door;
    column(2).drawn = 57;
    drawColumn(2);
    EXPECT_TRUE(textStandsAt(72, 28, "3 ", colour::text));
    EXPECT_EQ(pixelAt(boardCell(2, 3).x, boardCell(2, 3).y), flatColour(tile::cover));
    EXPECT_EQ(pixelAt(boardCell(2, 4).x, boardCell(2, 4).y), flatColour(tile::door));
    column(2).finished = 1;
    drawColumn(2);
    EXPECT_TRUE(textStandsAt(72, 28, "--", colour::text));
    EXPECT_TRUE(textStandsAt(84, 56, "D", colour::text) && textStandsAt(84, 116, "n", colour::text));
    EXPECT_EQ(pixelAt(83, 55), colour::black) << "the outline of the D's corner";
}

}  // namespace gloomdeck
