#include "prefs/prefs_screen.h"

#include <array>
#include <string>

#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/palette.h"
#include "platform/rounding.h"
#include "prefs/prefs.h"
#include "shell/layout.h"
#include "shell/mouse.h"
#include "shell/pacing.h"
#include "shell/panels.h"
#include "shell/screen_lock.h"
#include "shell/screen_poll.h"
#include "shell/ui_state.h"

namespace gloomdeck {

namespace {

constexpr Rect panel{84, 100, 324, 370};
constexpr int centreLine = 204;

struct SwitchRow {
    std::string_view label;
    int bit;
};

constexpr std::array<SwitchRow, toggleRows> switchRows{{{"Good stuff: ", 0},
                                                        {"Fairly easy: ", 1},
                                                        {"Obstacles: ", 2},
                                                        {"Spells/skills: ", 4},
                                                        {"\"Grief\": ", 3},
                                                        {"Restart: ", 5},
                                                        {"Skip text: ", 6}}};

const SwitchRow& switchRow(int row) { return switchRows[static_cast<std::size_t>(row)]; }

int besideSpeedDown() { return widget(id::speedDown).x + widget(id::speedDown).width + 8; }

void placeDone() {
    Button& done = widget(id::done);
    const Button& lastRow = widget(id::toggle + toggleRows - 1);
    placeButton(done, roundedRatio(2 * centreLine - done.width, 2), lastRow.y + lastRow.height + 16);
}

void drawWidgets() {
    drawPanel(panel.x1, panel.y1, panel.x2 - panel.x1, panel.y2 - panel.y1);
    prefs.currentScreen = screen_id::preferences;
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

void openScreen() {
    setWindowTitle("Preferences");
    startScreenPress();
    clickedButton = -1;
    const HeldScreen held;
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
    flipSwitch(switchBitOfRow(row));
    DrawSwitchRow(row);
}

void handleKey(const std::string& key) {
    if (key == "+") changeSpeed(speedUp);
    if (key == "-") changeSpeed(speedDown);
}

}  // namespace

std::string_view OnOffText(int on) { return on == 1 ? "On " : "Off"; }

int switchBitOfRow(int row) { return switchRow(row).bit; }

void DrawSwitchRow(int row) {
    const Button& button = widget(id::toggle + row);
    drawButton(button);
    const int x = button.x + button.width + 8;
    const int y = button.y;
    const bool on = switchIsOn(switchBitOfRow(row));
    fillBox(x, y, x + 150, y + 16, colour::black);
    drawText(x + 4, y + 4, std::string(switchRow(row).label) + std::string(OnOffText(on ? 1 : 0)),
             on ? colour::yellow : colour::slate);
}

void DrawSpeedRow() {
    const Button& up = widget(id::speedUp);
    const Button& down = widget(id::speedDown);
    fillBox(besideSpeedDown(), down.y + 2, up.x - 8, down.y + 14, colour::black);
    centredText(SpeedName(prefs.GameSpeed), roundedRatio(up.x + down.x + down.width, 2), down.y + 5);
}

void RunPreferencesScreen() {
    openScreen();
    while (true) {
        const ScreenEvent event = pollScreen();
        if (event.clicked == id::done || leavesScreen(event.key)) return;
        if (event.click)
            handleClick(event.clicked);
        else
            handleKey(event.key);
    }
}

}  // namespace gloomdeck
