#include "tools/soak/player.h"

#include <random>
#include <span>
#include <string_view>

#include "platform/frame.h"
#include "platform/host_script.h"
#include "prefs/prefs.h"
#include "rules/game_state.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/places.h"

namespace gloomdeck::soak {

namespace {

using namespace keycode;

std::mt19937_64 dice;

// Every screen's own keys, likely ones more than once.
constexpr std::string_view selectionKeys[] = {up, down, left, right, enter, enter, backspace, "A", "z", " "};
constexpr std::string_view playKeys[] = {"P",   "P", "P", "T", "H", "N", "N", "R",    "?",    "+",
                                         "-",   "Q", "Y", "n", "x", " ", " ", escape, escape, enter,
                                         enter, "E", "X", "]", tab, up,  "y", "y",    "P",    backspace};
constexpr std::string_view otherKeys[] = {up, down, left, right, enter, escape, "q", " ", "+", "-", "y"};

int below(int n) { return static_cast<int>(dice() % static_cast<std::uint64_t>(n)); }

Point pointIn(const Rect& r) { return {r.x1 + below(r.x2 - r.x1 + 1), r.y1 + below(r.y2 - r.y1 + 1)}; }

Point anywhere() { return pointIn({0, 0, frameWidth - 1, frameHeight - 1}); }

Point pointOn(int widgetId) {
    const Button& b = widget(widgetId);
    if (b.width < 1 || b.height < 1) return anywhere();
    const Point p = pointIn({b.x, b.y, b.x + b.width - 1, b.y + b.height - 1});
    return {p.x % frameWidth, p.y % frameHeight};
}

std::string_view keyFor(int screenId) {
    std::span<const std::string_view> keys = otherKeys;
    if (screenId == screen_id::selection) keys = selectionKeys;
    if (screenId == screen_id::play) keys = playKeys;
    return keys[static_cast<std::size_t>(below(static_cast<int>(keys.size())))];
}

Point placeFor(int screenId) {
    const std::span<const WidgetRow> widgets = widgetsInUse();
    if (screenId == screen_id::play && !oneIn(4))
        return pointIn(boardGrid.cell(below(columnCount), bottomRow));
    if (widgets.empty() || oneIn(20)) return anywhere();
    return pointOn(widgets[static_cast<std::size_t>(below(static_cast<int>(widgets.size())))].id);
}

void click(InputQueue& queue, Point from, Point to) {
    pointerMoved(queue, from.x, from.y);
    buttonChanged(queue, true);
    pointerMoved(queue, to.x, to.y);
    buttonChanged(queue, false);
}

void fidget(InputQueue& queue) {
    const Point at = anywhere();
    switch (below(5)) {
        case 0: return pointerLeft(queue);
        case 1: return script::advanceClock(below(2000) / 100.0);
        case 2: return click(queue, at, anywhere());
        case 3: pointerMoved(queue, at.x, at.y); return buttonChanged(queue, oneIn(2));
        default: return pointerMoved(queue, at.x, at.y);
    }
}

}  // namespace

void seedPlayer(std::uint64_t seed) { dice.seed(seed); }

bool oneIn(int times) { return below(times) == 0; }

void act(InputQueue& queue) {
    if (oneIn(500)) return closeRequested(queue);
    if (oneIn(10)) return fidget(queue);
    if (oneIn(4)) return keyTyped(queue, keyFor(prefs.currentScreen), oneIn(10));
    const Point at = placeFor(prefs.currentScreen);
    click(queue, at, at);
}

void interrupt(InputQueue& queue) {
    if (oneIn(1000)) act(queue);
    if (oneIn(100000)) closeRequested(queue);
}

}  // namespace gloomdeck::soak
