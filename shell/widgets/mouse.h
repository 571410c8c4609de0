// The mouse handler of all screens: presses, releases and hovers on the current screen's widgets.
#pragma once

namespace gloomdeck {

/// Processes the pointer once: 1 when a click completed (a button, a list or menu choice, or a play-screen
/// action that used a turn), else 0. A click may open a modal screen that calls this again: nothing here
/// keeps pressedWidget or clickedButton across a click.
int handleMouse();

/// For a screen that opens: a button that is held was pressed on no widget of it.
void startScreenPress();

/// For a screen that starts with no press at all: a button that is held does nothing until it is let go.
void restartPress();

/// Gives up a press that is under way: its look is removed, and it belongs to no widget until it is let go.
void dropPress();

}  // namespace gloomdeck
