// The press of the left button: the widget that it belongs to, and the button whose click it completed.
#pragma once
#include <cstdint>

namespace gloomdeck {

inline constexpr int notPressed = -1;      ///< pressedWidget while the button is up
inline constexpr int pressedNothing = -2;  ///< pressedWidget while a press that hit nothing is held

extern std::int32_t pressedWidget;  ///< the widget's id while the button is held over it
extern std::int32_t clickedButton;  ///< the button whose click completed in this pass, or -1

/// For whatever begins: no widget is pressed, and a button that is held does nothing until it is let go.
void restartPress();

/// True while a hold counts for nothing: it began on another screen, or the pointer came back with it.
bool holdIsIgnored(bool pointerIsOutside);

}  // namespace gloomdeck
