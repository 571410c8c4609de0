// The lines, the newest below in yellow, and what scrolls them.
#include "shell/widgets/messages.h"

#include <algorithm>

#include "platform/draw.h"
#include "platform/palette.h"
#include "platform/system.h"
#include "rules/show.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/places.h"
#include "shell/widgets/text.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

MessageBar messageBar;

namespace {

constexpr std::size_t longestLine = 47;
constexpr int lineLeft = 16;
constexpr int newestTop = 375;
constexpr int lineStep = 10;

bool barIsEmpty() {
    return std::all_of(messageBar.lines.begin(), messageBar.lines.end(),
                       [](const auto& line) { return line.empty(); });
}

void scrollIn(std::string_view line) {
    auto& lines = messageBar.lines;
    std::rotate(lines.begin(), lines.end() - 1, lines.end());
    lines.front() = line.substr(0, longestLine);
    if (!line.empty()) tell(lines.front());
}

void drawBar() {
    const Rect& bar = place::messageBar;
    frameBox(bar.x1, bar.y1, bar.x2, bar.y2);
    for (std::size_t i = 0; i < messageBar.lines.size(); ++i)
        drawText(lineLeft, newestTop - lineStep * static_cast<int>(i), messageBar.lines[i],
                 i == 0 ? colour::yellow : colour::text);
}

}  // namespace

void ShowMessage(std::string_view text, int mark) {
    const std::string_view line = trimmed(text);
    const bool nothingToScroll = !text.empty() && line.empty() && barIsEmpty();
    if (!nothingToScroll) {
        if (!text.empty()) scrollIn(line);
        drawBar();
    }
    if (!text.empty() && mark == 1) ui.messagePosted = true;
}

void scrollMessages() {
    if (!ui.messagePosted) ShowMessage(" ", 0);
}

void clearMessages() {
    for (std::string& line : messageBar.lines) line.clear();
}

}  // namespace gloomdeck
