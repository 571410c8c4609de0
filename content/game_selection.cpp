#include "content/game_selection.h"

#include <array>
#include <string>

#include "content/campaigns.h"
#include "content/game_flow.h"
#include "content/scenarios.h"
#include "content/selection_list.h"
#include "content/story_texts.h"
#include "platform/draw.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "platform/system.h"
#include "prefs/prefs.h"
#include "shell/describe.h"
#include "shell/layout.h"
#include "shell/lifecycle.h"
#include "shell/menus.h"
#include "shell/mouse.h"
#include "shell/panels.h"
#include "shell/screen_lock.h"
#include "shell/screen_poll.h"
#include "shell/tiles.h"
#include "shell/ui_state.h"

namespace gloomdeck {

namespace {

constexpr int barHeight = 479;
constexpr std::size_t longestTyped = 17;
constexpr double blinkTime = 0.25;  // seconds each way
constexpr Rect infoPanel{8, 32, 252, 128};
constexpr Rect nameField{8, 172, 252, 192};
constexpr int nameLeft = 16;
constexpr int nameTop = 178;
constexpr Point picturePlace{212, 40};

enum class Outcome { open, start, exit };

struct Selection {
    int tab = selection_tab::campaigns;
    std::array<int, 2> rows{};  // the highlighted row of each tab
    std::string name;
    bool cursorIsGrey = false;
    double nextBlink = 0;
};

int& rowOf(Selection& s) { return s.rows[static_cast<std::size_t>(s.tab)]; }

int inRange(int row, int length) { return row >= 0 && row < length ? row : 0; }

Selection selectionFromPrefs() {
    Selection s;
    s.tab = prefs.campaignChoice == -1 ? selection_tab::scenarios : selection_tab::campaigns;
    s.rows = {inRange(prefs.campaignChoice, campaignCount), inRange(prefs.scenarioChoice, scenarioTableSize)};
    s.name = nameText(prefs.heroName);
    s.nextBlink = timer() + blinkTime;
    return s;
}

int characterLeft(std::size_t i) { return nameLeft + glyphSize * static_cast<int>(i); }

void drawCursor(Selection& s, bool grey) {
    const int x = characterLeft(s.name.size()) + 2;
    fillBox(x, 180, x + 3, 184, grey ? colour::face : colour::yellow);
    s.cursorIsGrey = grey;
}

void blankCharacter(std::size_t i) {
    const int x = characterLeft(i);
    fillBox(x, nameField.y1 + 1, x + 15, nameField.y2 - 1, colour::black);
}

void drawNameField(Selection& s) {
    drawText(16, 162, "Hero Name:");
    frameBox(nameField.x1, nameField.y1, nameField.x2, nameField.y2);
    drawText(nameLeft, nameTop, s.name);
    drawCursor(s, false);
}

void placeWidgets() {
    Button& list = widget(id::list);
    Button& done = widget(id::done);
    placeButton(list, 260, 32);
    placeButton(done, list.x - 8 - done.width, 200);
    placeButton(widget(id::selectionExit), list.x - 72 - done.width, 200);
    done.caption = "Start";
    widget(id::selectionExit).caption = "Exit";
}

void openScreen(Selection& s) {
    setWindowTitle("Select a game");
    prefs.currentScreen = screen_id::selection;
    startScreenPress();
    clickedButton = -1;
    const HeldScreen held;
    clearScreen();
    drawHeaderBar(barHeight);
    placeWidgets();
    drawButton(widget(id::done));
    drawButton(widget(id::selectionExit));
    drawNameField(s);
}

void drawHeading(std::string_view name, int pictureTile, int difficulty) {
    frameBox(infoPanel.x1, infoPanel.y1, infoPanel.x2, infoPanel.y2);
    drawFramedTile(pictureTile, picturePlace.x, picturePlace.y);
    drawText(16, 40, name, colour::yellow);
    drawText(16, 92, difficultyName(difficulty));
}

void drawInfo(Selection& s) {
    if (s.tab == selection_tab::scenarios) {
        const Scenario& scenario = scenarioRow(scenarioAtPosition(rowOf(s)));
        return drawHeading(scenario.name, scenario.pictureTile, scenario.difficulty);
    }
    const Campaign& campaign = campaignRow(rowOf(s));
    drawHeading(campaign.name, campaign.pictureTile, campaign.difficulty);
    drawWrappedText(std::string(storyText(rowOf(s), 0)), 16, 60, 25, 12);
    drawText(16, 102, std::to_string(campaign.scenarioCount) + " scenarios");
}

// Mouse clicks start from what is handed to the widgets here.
void handToWidgets(Selection& s) {
    Button& tabs = widget(id::tabs);
    Button& list = widget(id::list);
    tabs.selected = tabs.pressCol = s.tab;
    list.selected = list.pressRow = rowOf(s);
    list.height = selectionListLength(s.tab) * list.cellHeight;
}

void drawChoice(Selection& s) {
    handToWidgets(s);
    const HeldScreen held;
    drawTabs(s.tab);
    drawSelectionList();
    drawInfo(s);
}

void switchTab(Selection& s, int tab) {
    s.tab = tab;
    drawChoice(s);
}

void moveRow(Selection& s, int by) {
    rowOf(s) = aroundEnds(rowOf(s) + by, selectionListLength(s.tab));
    drawChoice(s);
}

void typeKey(Selection& s, const std::string& key) {
    if (!isPrintable(key) || s.name.size() >= longestTyped) return;
    blankCharacter(s.name.size());
    drawText(characterLeft(s.name.size()), nameTop, key);
    s.name += key;
    drawCursor(s, false);
}

void deleteCharacter(Selection& s) {
    if (s.name.empty()) return;
    s.name.pop_back();
    blankCharacter(s.name.size());
    drawCursor(s, false);
}

void blink(Selection& s) {
    if (timer() < s.nextBlink) return;
    s.nextBlink = timer() + blinkTime;
    drawCursor(s, !s.cursorIsGrey);
}

Outcome handleClick(Selection& s, int clicked) {
    if (clicked == id::done) return Outcome::start;
    if (clicked == id::selectionExit) return Outcome::exit;
    const int tab = widget(id::tabs).pressCol;
    const int row = widget(id::list).pressRow;
    if (tab != s.tab)
        switchTab(s, tab);
    else
        moveRow(s, row - rowOf(s));
    return Outcome::open;
}

Outcome handleKey(Selection& s, const std::string& key) {
    if (key == keycode::escape || key == keycode::close) return Outcome::exit;
    if (key == keycode::enter) return Outcome::start;
    if (key == keycode::up || key == keycode::down) {
        moveRow(s, key == keycode::up ? -1 : 1);
    } else if (key == keycode::left || key == keycode::right) {
        switchTab(s, 1 - s.tab);
    } else {
        if (key == keycode::backspace)
            deleteCharacter(s);
        else
            typeKey(s, key);
        blink(s);
    }
    return Outcome::open;
}

Outcome runUntilDecided(Selection& s) {
    Outcome outcome = Outcome::open;
    while (outcome == Outcome::open) {
        const ScreenEvent event = pollScreen(s.nextBlink);
        outcome = event.click ? handleClick(s, event.clicked) : handleKey(s, event.key);
    }
    return outcome;
}

void storeChoice(const Selection& s) {
    storeName(prefs.heroName, s.name);
    const bool campaign = s.tab == selection_tab::campaigns;
    prefs.campaignChoice = campaign ? s.rows[selection_tab::campaigns] : -1;
    if (!campaign) prefs.scenarioChoice = s.rows[selection_tab::scenarios];
}

}  // namespace

void runGameSelection() {
    Selection s = selectionFromPrefs();
    openScreen(s);
    drawChoice(s);
    if (runUntilDecided(s) == Outcome::exit) {
        shutDown();
        endProgram(0);
    }
    storeChoice(s);
    startNewGame();
}

}  // namespace gloomdeck
