// The page that is shown, the entry of each table page, and the buttons that step.
#include "help/help_screen.h"

#include <array>

#include "help/help_pages.h"
#include "platform/draw.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "platform/rounding.h"
#include "prefs/prefs.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/menus.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/screen.h"
#include "shell/widgets/screen_lock.h"

namespace gloomdeck {

namespace {

constexpr int barHeight = 488;
constexpr Rect contentPanel{98, 20, 337, 256};
constexpr Rect besidePanel{345, 20, 409, 363};
constexpr Point prevPlace{98, 264};
constexpr Point nextPlace{273, 264};
constexpr int doneTop = 294;

struct HelpState {
    int page = help_page::encounters;
    std::array<int, helpPageCount> entries{};
};

int& entryOf(HelpState& state) { return state.entries[static_cast<std::size_t>(state.page)]; }

bool isTablePage(int page) { return helpEntryCount(page) > 1; }

void redrawMenu() { drawHelpMenu(helpPageLabels, widget(id::helpMenu).selected); }

constexpr std::array<WidgetRow, 4> widgets{
    {{.id = id::helpMenu, .release = releaseMenu, .redraw = redrawMenu},
     {.id = id::next},
     {.id = id::prev},
     {.id = id::done}}};
constexpr Screen helpScreen{screen_id::help, "Help", [] { return std::span<const WidgetRow>(widgets); }};

void drawGround() {
    drawHeaderBar(barHeight);
    Button& done = widget(id::done);
    done.caption = "OK";
    placeButton(done, roundedRatio(contentPanel.x1 + contentPanel.x2 - done.width, 2), doneTop);
    placeButton(widget(id::prev), prevPlace.x, prevPlace.y);
    placeButton(widget(id::next), nextPlace.x, nextPlace.y);
    widget(id::helpMenu).height = helpPageCount * widget(id::helpMenu).cellHeight;
    drawButton(done);
}

void showStepButton(int widgetId, bool shown) {
    widget(widgetId).hidden = !shown;
    if (shown)
        drawButton(widget(widgetId));
    else
        eraseButton(widget(widgetId));
}

void drawContent(HelpState& state) {
    const HeldScreen held;
    frameBox(contentPanel.x1, contentPanel.y1, contentPanel.x2, contentPanel.y2);
    fillBox(besidePanel.x1, besidePanel.y1, besidePanel.x2, besidePanel.y2, colour::panel);
    drawHelpPage(state.page, entryOf(state));
}

void drawPage(HelpState& state) {
    const HeldScreen held;
    Button& menu = widget(id::helpMenu);
    menu.selected = menu.pressRow = state.page;
    drawHelpMenu(helpPageLabels, state.page);
    showStepButton(id::next, isTablePage(state.page));
    showStepButton(id::prev, isTablePage(state.page));
    drawContent(state);
}

void turnTo(HelpState& state, int page) {
    state.page = aroundEnds(page, helpPageCount);
    drawPage(state);
}

void step(HelpState& state, int by) {
    if (!isTablePage(state.page)) return;
    entryOf(state) = aroundEnds(entryOf(state) + by, helpEntryCount(state.page));
    drawContent(state);
}

void handleClick(HelpState& state, int clicked) {
    if (clicked == id::next) return step(state, 1);
    if (clicked == id::prev) return step(state, -1);
    if (clicked == -1) turnTo(state, widget(id::helpMenu).pressRow);
}

void handleKey(HelpState& state, const std::string& key) {
    if (key == keycode::up) return turnTo(state, state.page - 1);
    if (key == keycode::down) return turnTo(state, state.page + 1);
    if (key == keycode::right) return step(state, 1);
    if (key == keycode::left) step(state, -1);
}

bool handle(HelpState& state, const ScreenEvent& event) {
    if (leavesScreen(event)) return false;
    if (event.click)
        handleClick(state, event.clicked);
    else
        handleKey(state, event.key);
    return true;
}

}  // namespace

void runHelpScreen() {
    HelpState state;
    const auto draw = [&] {
        drawGround();
        drawPage(state);
    };
    runScreen({.screen = helpScreen, .draw = draw, .handle = [&](const ScreenEvent& event) {
                   return handle(state, event);
               }});
}

}  // namespace gloomdeck
