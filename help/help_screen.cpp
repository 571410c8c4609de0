#include "help/help_screen.h"

#include <array>

#include "help/help_pages.h"
#include "help/help_texts.h"
#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "platform/rounding.h"
#include "prefs/prefs.h"
#include "shell/layout.h"
#include "shell/menus.h"
#include "shell/mouse.h"
#include "shell/panels.h"
#include "shell/screen_lock.h"
#include "shell/screen_poll.h"
#include "shell/ui_state.h"

namespace gloomdeck {

namespace {

constexpr int barHeight = 488;
constexpr Rect contentPanel{98, 20, 337, 256};
constexpr Rect besidePanel{345, 20, 409, 363};
constexpr int contentLeft = 106;
constexpr int contentRight = 337;

struct HelpState {
    int page = help_page::encounters;
    std::array<int, help_page::count> entries{};
};

int& entryOf(HelpState& state) { return state.entries[static_cast<std::size_t>(state.page)]; }

bool isTablePage(int page) { return helpEntryCount(page) > 1; }

void openScreen() {
    setWindowTitle("Help");
    prefs.currentScreen = screen_id::help;
    startScreenPress();
    clickedButton = -1;
    const HeldScreen held;
    drawHeaderBar(barHeight);
    Button& done = widget(id::done);
    done.caption = "OK";
    placeButton(done, roundedRatio(2 * contentLeft + contentRight - (contentLeft + 8) - done.width, 2), 294);
    placeButton(widget(id::prev), 98, 264);
    placeButton(widget(id::next), 273, 264);
    widget(id::helpMenu).height = help_page::count * widget(id::helpMenu).cellHeight;
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
    state.page = aroundEnds(page, help_page::count);
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

}  // namespace

void runHelpScreen() {
    openScreen();
    HelpState state;
    drawPage(state);
    while (true) {
        const ScreenEvent event = pollScreen();
        if (event.clicked == id::done || leavesScreen(event.key)) return;
        if (event.click)
            handleClick(state, event.clicked);
        else
            handleKey(state, event.key);
    }
}

}  // namespace gloomdeck
