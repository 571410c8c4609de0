// The four-line message bar.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace gloomdeck {

struct MessageBar {
    std::array<std::string, 4> lines;  // the newest first, at most 47 characters each
};

extern MessageBar messageBar;

/// Posts a line; mark 1 makes it the action's own message, which the board turn does not scroll away. A text
/// of spaces scrolls the bar up by an empty line, an empty text only redraws it.
void ShowMessage(std::string_view text, int mark);

/// Empties the lines without drawing.
void clearMessages();

}  // namespace gloomdeck
