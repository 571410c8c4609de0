// The rows of switches, the speed between its buttons, and what a click changes.
#include "prefs/screen/prefs_screen.h"

#include <string>

#include "platform/draw.h"
#include "platform/palette.h"
#include "platform/rounding.h"
#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/pacing.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/screen.h"

namespace gloomdeck {

namespace {

constexpr Rect panel{84, 100, 324, 370};
constexpr int centreLine = 204;

const SwitchType& switchOfRow(int row) { return SwitchTable[static_cast<std::size_t>(row)]; }

int besideSpeedDown() { return widget(id::speedDown).x + widget(id::speedDown).width + 8; }

void placeDone() {
    Button& done = widget(id::done);
    const Button& lastRow = widget(id::toggle + toggleRows - 1);
    placeButton(done, roundedRatio(2 * centreLine - done.width, 2), lastRow.y + lastRow.height + 16);
}

void drawWidgets() {
    drawPanel(panel.x1, panel.y1, panel.x2 - panel.x1, panel.y2 - panel.y1);
    widget(id::done).caption = "Done";
    for (const int button : {id::done, id::speedUp, id::speedDown}) drawButton(widget(button));
    drawText(widget(id::toggle).x + 62, widget(id::toggle).y - 12, "Autoplayer");
    for (int row = 0; row < toggleRows; ++row) {
        widget(id::toggle + row).hidden = false;
        DrawSwitchRow(row);
    }
    drawText(besideSpeedDown(), widget(id::speedDown).y - 12, "Game speed");
    DrawSpeedRow();
}

constexpr std::array<WidgetRow, 10> widgets{{{id::speedUp},
                                             {id::speedDown},
                                             {id::done},
                                             {id::toggle},
                                             {id::toggle + 1},
                                             {id::toggle + 2},
                                             {id::toggle + 3},
                                             {id::toggle + 4},
                                             {id::toggle + 5},
                                             {id::toggle + 6}}};
constexpr Screen preferencesScreen{screen_id::preferences, "Preferences",
                                   [] { return std::span<const WidgetRow>(widgets); }};

void draw() {
    placeDone();
    drawWidgets();
}

void changeSpeed(void (*change)(int)) {
    change(0);
    DrawSpeedRow();
}

void handleClick(int clicked) {
    if (clicked == id::speedUp) return changeSpeed(speedUp);
    if (clicked == id::speedDown) return changeSpeed(speedDown);
    const int row = clicked - id::toggle;
    if (row < 0 || row >= toggleRows) return;
    flipSwitch(switchOfRow(row).bit);
    DrawSwitchRow(row);
}

void handleKey(const std::string& key) {
    if (key == "+") changeSpeed(speedUp);
    if (key == "-") changeSpeed(speedDown);
}

bool handle(const ScreenEvent& event) {
    if (leavesScreen(event)) return false;
    if (event.click)
        handleClick(event.clicked);
    else
        handleKey(event.key);
    return true;
}

}  // namespace

std::string_view OnOffText(int on) { return on == 1 ? "On " : "Off"; }

void DrawSwitchRow(int row) {
    const Button& button = widget(id::toggle + row);
    drawButton(button);
    const int x = button.x + button.width + 8;
    const int y = button.y;
    const bool on = switchIsOn(switchOfRow(row).bit);
    fillBox(x, y, x + 150, y + 16, colour::black);
    drawText(x + 4, y + 4, std::string(switchOfRow(row).label) + std::string(OnOffText(on ? 1 : 0)),
             on ? colour::yellow : colour::slate);
}

void DrawSpeedRow() {
    const Button& up = widget(id::speedUp);
    const Button& down = widget(id::speedDown);
    fillBox(besideSpeedDown(), down.y + 2, up.x - 8, down.y + 14, colour::black);
    centredText(SpeedName(prefs.GameSpeed), roundedRatio(up.x + down.x + down.width, 2), down.y + 5);
}

void RunPreferencesScreen() { runScreen({.screen = preferencesScreen, .draw = draw, .handle = handle}); }

}  // namespace gloomdeck
