// The mouse handler: what is pressed, and what clicks mean.
#include "shell/widgets/mouse.h"

#include "platform/input.h"
#include "shell/widgets/hit_test.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/press.h"
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
    static int drag(Point from, Point to) { return press(from) + release(to); }
    static int leave() {
        pointerLeft(inputQueue());
        return handleMouse();
    }
};

TEST_F(MouseTest, APressTakesTheCellByItsFloorAndAReleaseCountsInThatCellOnly) {
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
    EXPECT_EQ(hitTest(exit, exit.x, exit.y, Phase::press), 1);
    exit.hidden = true;
    for (const Phase phase : {Phase::press, Phase::release, Phase::hover})
        EXPECT_EQ(hitTest(exit, exit.x, exit.y, phase), 0);
}

TEST_F(MouseTest, AButtonClicksWhenPressAndReleaseLieOnIt) {
    EXPECT_EQ(drag(widgetCentre(id::help), widgetCentre(id::help)), 1);
    EXPECT_EQ(clickedButton, id::help);
    EXPECT_EQ(drag(widgetCentre(id::help), widgetCentre(id::prefs)), 0);
    EXPECT_EQ(clickedButton, -1);
    EXPECT_EQ(press(widgetCentre(id::help)) + leave(), 0);
    EXPECT_EQ(release({300, 20}) + drag({300, 20}, widgetCentre(id::help)), 0) << "pressed on nothing";
}

TEST_F(MouseTest, ABoardClickMeetsTheBottomTileOfAnOpenColumn) {
    board(2, 5) = board(2, 6) = board(3, 6) = enc::Door;
    count(keys) = 5;
    column(3).finished = 1;
    EXPECT_EQ(drag(boardCell(2, 6), boardCell(3, 6)), 0);
    EXPECT_EQ(press(boardCell(2, 6)) + leave() + release({300, 20}), 0);
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

TEST_F(MouseTest, WhatIsUnderThePointerIsToldToReadersWhoDoNotSeeIt) {
    board(2, 5) = enc::Skeleton;
    moveTo(boardCell(2, 5));
    EXPECT_EQ(script::toldText(), "Skeleton");
    moveTo(statsCell(gold));
    EXPECT_TRUE(script::toldText().starts_with("Gold: "));
}

}  // namespace gloomdeck
