#include "shell/mouse.h"

#include "content/selection_list.h"
#include "help/help_texts.h"
#include "platform/input.h"
#include "prefs/prefs.h"
#include "rules/stats_column.h"
#include "shell/board_view.h"
#include "shell/hit_test.h"
#include "shell/layout.h"
#include "shell/menus.h"
#include "shell/places.h"
#include "shell/play_clicks.h"
#include "shell/play_pieces.h"
#include "shell/ui_state.h"

namespace gloomdeck {

namespace {

Button pressedButtonCopy;
bool ignoreHold = false;  // the button is still down from another screen, or from before the pointer left

void endHover(int gridWidget) {
    widget(gridWidget).hoverCol = -1;
    clearInfoArea();
}

void hover(const MouseState& mouse) {
    if (prefs.currentScreen != screen_id::play || prefs.scenarioOver) return;
    // Leaving comes before entering, so that a jump from one grid to the other keeps the new description.
    const bool overBoard = contains(boardGrid.area(), mouse.x, mouse.y);
    const bool overStats = contains(statsGrid.area(), mouse.x, mouse.y);
    if (!overBoard) leaveHover(widget(id::board));
    if (!overStats) leaveHover(widget(id::stats));
    hitTest(widget(id::board), mouse.x, mouse.y, Phase::hover);
    hitTest(widget(id::stats), mouse.x, mouse.y, Phase::hover);
}

void press(const MouseState& mouse) {
    pressedWidget = pressedNothing;
    for (const int candidate : pressOrder(prefs.currentScreen)) {
        if (!hitTest(widget(candidate), mouse.x, mouse.y, Phase::press)) continue;
        pressedWidget = candidate;
        if (!isCompound(candidate)) copyButton(pressedButtonCopy, widget(candidate));
        return;
    }
}

int releaseOnBoard(const MouseState& mouse) {
    Button& board = widget(id::board);
    const int col = board.pressCol;
    int answer = 0;
    if (hitTest(board, mouse.x, mouse.y, Phase::release)) {
        answer = clickBoard(col, board.pressRow);
        endHover(id::board);
    }
    if (!answer) drawColumn(col);
    return answer;
}

int releaseOnStats() {
    const int row = widget(id::stats).pressRow;
    const int answer = clickStats(row);
    drawStatsCell(row);
    endHover(id::stats);
    return answer;
}

void redrawCompound(int widgetId) {
    const int selected = widget(widgetId).selected;
    switch (widgetId) {
        case id::list: return drawSelectionList();
        case id::tabs: return drawTabs(selected);
        default: return drawHelpMenu(helpPageLabels, selected);
    }
}

// The item under the press; tabs lie side by side, lists and the help menu below each other.
std::int32_t& pressedItem(Button& b, int widgetId) { return widgetId == id::tabs ? b.pressCol : b.pressRow; }

int releaseOnMenu(int widgetId, const MouseState& mouse) {
    Button& menu = widget(widgetId);
    std::int32_t& item = pressedItem(menu, widgetId);
    if (hitTest(menu, mouse.x, mouse.y, Phase::release) && item != menu.selected) return 1;
    item = menu.selected;
    redrawCompound(widgetId);
    return 0;
}

int releaseOnButton(int widgetId, const MouseState& mouse) {
    drawButton(pressedButtonCopy);
    const bool hit = hitTest(pressedButtonCopy, mouse.x, mouse.y, Phase::release) != 0;
    clickedButton = hit ? widgetId : -1;
    return hit ? 1 : 0;
}

int release(int released, const MouseState& mouse) {
    switch (released) {
        case pressedNothing: return 0;
        case id::board: return releaseOnBoard(mouse);
        case id::stats: return releaseOnStats();
        case id::list:
        case id::tabs:
        case id::helpMenu: return releaseOnMenu(released, mouse);
        default: return releaseOnButton(released, mouse);
    }
}

void removePressedLook() {
    switch (pressedWidget) {
        case id::board: return drawColumn(widget(id::board).pressCol);
        case id::stats: return drawStatsCell(widget(id::stats).pressRow);
        case id::list:
        case id::tabs:
        case id::helpMenu: return redrawCompound(pressedWidget);
        default: return drawButton(pressedButtonCopy);
    }
}

}  // namespace

int handleMouse() {
    const MouseState mouse = getMouse();
    const bool outside = mouse.status != 0;
    const bool down = leftIsHeld(mouse);
    ignoreHold = buttonIsHeld() && (ignoreHold || outside);
    if (pressedWidget == notPressed) {
        // A pointer outside presses nothing, so that the click with which it comes back is seen.
        if (outside || ignoreHold) return 0;
        hover(mouse);  // also before a press, which may come to a new place at once
        if (down) press(mouse);
        return 0;
    }
    if (down) return 0;
    const int released = pressedWidget;
    pressedWidget = notPressed;
    return release(released, mouse);
}

void startScreenPress() { pressedWidget = buttonIsHeld() ? pressedNothing : notPressed; }

void restartPress() {
    pressedWidget = notPressed;
    ignoreHold = buttonIsHeld();
}

void dropPress() {
    if (pressedWidget > 0) removePressedLook();
    if (pressedWidget != notPressed) pressedWidget = pressedNothing;
}

}  // namespace gloomdeck
