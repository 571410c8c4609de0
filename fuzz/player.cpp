#include "fuzz/player.h"

#include <array>
#include <cstdio>
#include <string>
#include <string_view>

#include "platform/frame.h"
#include "platform/host_script.h"
#include "prefs/prefs.h"
#include "rules/game_state.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/places.h"

namespace gloomdeck::fuzz {

namespace {

using namespace keycode;

// Counts for whoever reads what the process has written.
struct Tally {
    Tally() = default;
    ~Tally() { std::fprintf(stderr, "scripted inputs: %ld\n", played); }
    Tally(const Tally&) = delete;
    Tally& operator=(const Tally&) = delete;

    long played = 0;
};

Tally tally;

// All that some screen reacts to.
constexpr std::array<std::string_view, 32> knownKeys{
    up,  down, left, right, enter, escape, backspace, tab, space, "P", "T", "H", "N", "R", "Q", "X",
    "E", "+",  "-",  "?",   "]",   "Y",    "n",       "y", "q",   "a", "~", "P", "T", "P", "P", "y"};

Point middleOf(const Rect& r) { return {(r.x1 + r.x2) / 2, (r.y1 + r.y2) / 2}; }

Point anywhere(InputBytes& bytes) {
    const int x = bytes.byte() * frameWidth / 255;
    const int y = bytes.byte() * frameHeight / 255;
    return {x % frameWidth, y % frameHeight};
}

Point boardPlace(InputBytes& bytes) {
    const int at = bytes.below(columnCount * rowCount);
    return middleOf(boardGrid.cell(at % columnCount, at / columnCount));
}

Point bottomPlace(InputBytes& bytes) { return middleOf(boardGrid.cell(bytes.below(columnCount), bottomRow)); }

Point itemPlace(InputBytes& bytes) { return middleOf(statsGrid.cell(0, bytes.below(itemCount))); }

// A place on one of the widgets that the screen tests, its edges included.
Point widgetPlace(InputBytes& bytes) {
    const std::span<const WidgetRow> widgets = widgetsInUse();
    const int which = bytes.byte();
    const int where = bytes.byte();
    if (widgets.empty()) return {};
    const Button& b = widget(widgets[static_cast<std::size_t>(which) % widgets.size()].id);
    const int x = b.x + b.width * (where % 16) / 15;
    const int y = b.y + b.height * (where / 16) / 15;
    return {x % frameWidth, y % frameHeight};
}

void pointAt(InputQueue& queue, Point at) { pointerMoved(queue, at.x, at.y); }

void click(InputQueue& queue, Point at) {
    pointAt(queue, at);
    buttonChanged(queue, true);
    buttonChanged(queue, false);
}

void drag(InputQueue& queue, Point from, Point to) {
    pointAt(queue, from);
    buttonChanged(queue, true);
    pointAt(queue, to);
    buttonChanged(queue, false);
}

void typeKnown(InputBytes& bytes, InputQueue& queue) {
    const int which = bytes.byte();
    keyTyped(queue, knownKeys[static_cast<std::size_t>(which) % knownKeys.size()], which >= 0xC0);
}

// Any byte at all, and now and then an extended code.
void typeAny(InputBytes& bytes, InputQueue& queue) {
    const char key = static_cast<char>(bytes.byte());
    keyTyped(queue, bytes.below(4) == 0 ? std::string{'\xFF', key} : std::string(1, key));
}

void pileUp(InputBytes& bytes, InputQueue& queue) {
    const int times = bytes.byte();
    const Point at = bottomPlace(bytes);
    for (int i = 0; i < times; ++i) click(queue, at);
    for (int i = 0; i < times; ++i) keyTyped(queue, times % 2 == 0 ? "+" : "P", true);
}

[[noreturn]] void lose() {
    script::loseWindow();
    throw WindowLost();
}

void endSomehow(InputBytes& bytes, InputQueue& queue) {
    switch (bytes.below(4)) {
        case 0: lose();
        case 1: return endRequested(queue);
        default: return closeRequested(queue);
    }
}

void fidget(InputBytes& bytes, InputQueue& queue) {
    const int what = bytes.byte();
    switch (what % 8) {
        case 0: return pointerLeft(queue);
        case 1: return buttonChanged(queue, true);
        case 2: return buttonChanged(queue, false);
        case 3: return script::advanceClock(what);
        case 4: return script::advanceClock(what / 1000.0);
        case 5: return pileUp(bytes, queue);
        case 6: return typeAny(bytes, queue);
        default: return endSomehow(bytes, queue);
    }
}

}  // namespace

Timing playNext(InputBytes& bytes, InputQueue& queue) {
    ++tally.played;
    const int what = bytes.byte();
    Timing next;
    if (what >= 0xC0) next.polls = what >= 0xF0 ? 1 : 1 + bytes.byte();
    if (what >= 0x80 && what < 0xC0) next.pauses = 1 + bytes.below(64);
    switch (what % 16) {
        case 0:
        case 1:
        case 2:
        case 3: click(queue, bottomPlace(bytes)); break;
        case 4:
        case 5: click(queue, itemPlace(bytes)); break;
        case 6:
        case 7: click(queue, boardPlace(bytes)); break;
        case 8:
        case 9: click(queue, widgetPlace(bytes)); break;
        case 10:
        case 11:
        case 12: typeKnown(bytes, queue); break;
        case 13: pointAt(queue, anywhere(bytes)); break;
        case 14: drag(queue, widgetPlace(bytes), widgetPlace(bytes)); break;
        default: fidget(bytes, queue); break;
    }
    return next;
}

}  // namespace gloomdeck::fuzz
