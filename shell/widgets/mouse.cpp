// From the pointer's state to the row of the widget that it concerns.
#include "shell/widgets/mouse.h"

#include <algorithm>

#include "platform/input.h"
#include "shell/widgets/hit_test.h"
#include "shell/widgets/press.h"

namespace gloomdeck {

namespace {

Button pressedButtonCopy;
WidgetTable widgetTable = nullptr;

const WidgetRow* rowOf(int widgetId) {
    const auto rows = widgetsInUse();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [=](const auto& row) { return row.id == widgetId; });
    return found == rows.end() ? nullptr : &*found;
}

void leaveHover(const WidgetRow& row) {
    Button& grid = widget(row.id);
    if (grid.hoverCol != -1) row.leave(grid);
    grid.hoverCol = -1;
}

void hoverOver(const WidgetRow& row, const MouseState& mouse) {
    Button& grid = widget(row.id);
    const Point at = cellUnder(grid, mouse.x, mouse.y);
    if (grid.hoverCol == at.x && grid.hoverRow == at.y) return;
    leaveHover(row);
    grid.hoverCol = at.x;
    grid.hoverRow = at.y;
    row.hover(grid);
}

// Leaving comes before entering, so that a jump from one grid to another keeps the new description.
void hover(const MouseState& mouse) {
    for (const bool over : {false, true})
        for (const WidgetRow& row : widgetsInUse()) {
            if (row.hover == nullptr ||
                hitTest(widget(row.id), mouse.x, mouse.y, Phase::hover) != (over ? 1 : 0))
                continue;
            if (over)
                hoverOver(row, mouse);
            else
                leaveHover(row);
        }
}

void press(const MouseState& mouse) {
    pressedWidget = pressedNothing;
    for (const WidgetRow& row : widgetsInUse()) {
        if (!hitTest(widget(row.id), mouse.x, mouse.y, Phase::press)) continue;
        pressedWidget = row.id;
        copyButton(pressedButtonCopy, widget(row.id));
        return;
    }
}

// The item under the press; tabs lie side by side, lists and the help menu below each other.
std::int32_t& pressedItem(Button& menu) {
    return menu.cellWidth < menu.width ? menu.pressCol : menu.pressRow;
}

}  // namespace

void useWidgets(WidgetTable table) { widgetTable = table; }

std::span<const WidgetRow> widgetsInUse() {
    return widgetTable == nullptr ? std::span<const WidgetRow>() : widgetTable();
}

void redrawPressedButton() { drawButton(pressedButtonCopy); }

int releaseButton(const WidgetRow& row, const MouseState& mouse) {
    row.redraw();
    const bool hit = hitTest(pressedButtonCopy, mouse.x, mouse.y, Phase::release) != 0;
    clickedButton = hit ? row.id : -1;
    return hit ? 1 : 0;
}

int releaseMenu(const WidgetRow& row, const MouseState& mouse) {
    Button& menu = widget(row.id);
    std::int32_t& item = pressedItem(menu);
    if (hitTest(menu, mouse.x, mouse.y, Phase::release) && item != menu.selected) return 1;
    item = menu.selected;
    row.redraw();
    return 0;
}

int handleMouse() {
    const MouseState mouse = getMouse();
    const bool outside = mouse.status != 0;
    const bool down = leftIsHeld(mouse);
    const bool ignored = holdIsIgnored(outside);
    if (pressedWidget == notPressed) {
        // A pointer outside presses nothing, so that the click with which it comes back is seen.
        if (outside || ignored) return 0;
        hover(mouse);  // also before a press, which may come to a new place at once
        if (down) press(mouse);
        return 0;
    }
    if (down) return 0;
    const WidgetRow* const released = rowOf(pressedWidget);
    pressedWidget = notPressed;
    return released == nullptr ? 0 : released->release(*released, mouse);
}

void dropPress() {
    if (const WidgetRow* const row = rowOf(pressedWidget)) row->redraw();
    if (pressedWidget != notPressed) pressedWidget = pressedNothing;
}

}  // namespace gloomdeck
