// The mouse over the widgets of the screen that stands: it finds the widget, keeps the press, and calls what
// the widget's row says. It knows no screen and no rule.
#pragma once
#include <span>

#include "platform/input_queue.h"
#include "shell/widgets/layout.h"

namespace gloomdeck {

struct WidgetRow;

/// What a button does when it is let go: a click where it was pressed makes it clickedButton and answers 1.
int releaseButton(const WidgetRow& row, const MouseState& mouse);

/// What a menu or list does: 1 where another item than its selected one was clicked; the owner reads it from
/// the pressed cell.
int releaseMenu(const WidgetRow& row, const MouseState& mouse);

/// Draws the button as it was before the press.
void redrawPressedButton();

/// What a widget does, and how it looks without a press. A press that is let go answers 1 when a click
/// completed.
struct WidgetRow {
    int id;
    int (*release)(const WidgetRow& row, const MouseState& mouse) = releaseButton;
    void (*redraw)() = redrawPressedButton;
    void (*hover)(const Button& grid) = nullptr;  // its hovered cell begins to be so
    void (*leave)(const Button& grid) = nullptr;  // and ends
};

/// The widgets that are tested now, in order.
using WidgetTable = std::span<const WidgetRow> (*)();
void useWidgets(WidgetTable table);
std::span<const WidgetRow> widgetsInUse();

/// Processes the pointer once: 1 when a click completed (a button, a list or menu choice, or an action that
/// used a turn), else 0. A click may open a modal screen that calls this again: nothing here keeps
/// pressedWidget or clickedButton across a click.
int handleMouse();

/// Gives up a press that is under way: its look is removed, and it belongs to no widget until it is let go.
void dropPress();

}  // namespace gloomdeck
