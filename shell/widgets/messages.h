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

/// Empties the lines without drawing.
void clearMessages();

}  // namespace gloomdeck
