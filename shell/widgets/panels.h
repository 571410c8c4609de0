// Panels, bars and text that all screens share.
#pragma once

#include <string>
#include <string_view>

namespace gloomdeck {

/// A black box with a slate frame on its corners.
void frameBox(int x1, int y1, int x2, int y2);

/// Text in the default colour with its middle at cx.
void centredText(std::string_view text, int cx, int y);

/// The woven screen background, laid over what is there.
void drawBackground();

/// The background with a white-edged panel from (x, y) to (x + w, y + h).
void drawPanel(int x, int y, int w, int h);

/// The background with a bar across the top down to row h and a white line under it.
void drawHeaderBar(int h);

/// A strip across the board, h pixels high, from top pixels below the board's top edge, with a text.
void drawBoardLabel(std::string_view text, int top, int h);

/// Word-wrapped text in the default colour: width characters a line, lines lineStep pixels apart. A backslash
/// ends a line; a line that begins with "*" indents those that follow until then. A word longer than a line
/// is split.
void drawWrappedText(const std::string& text, int x, int y, int width, int lineStep);

}  // namespace gloomdeck
