// The tabs, the list beside its panel, and the name that is typed.
#include "content/screens/game_selection.h"

#include <array>
#include <string>

#include "content/campaigns.h"
#include "content/game_flow.h"
#include "content/scenarios.h"
#include "content/screens/selection_list.h"
#include "content/story_texts.h"
#include "platform/draw.h"
#include "platform/font.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "platform/table.h"
#include "prefs/prefs.h"
#include "rules/tiles.h"
#include "shell/play/describe.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/menus.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/screen.h"
#include "shell/widgets/screen_lock.h"

namespace gloomdeck {

namespace {

constexpr int barHeight = 479;
constexpr std::size_t longestTyped = 17;
constexpr double blinkTime = 0.25;  // seconds each way
constexpr Rect infoPanel{8, 32, 252, 128};
constexpr Rect nameField{8, 172, 252, 192};
constexpr int textLeft = 16;
constexpr int nameLabelTop = 162;
constexpr int nameTop = 178;
constexpr int cursorGap = 2;  // between the name and the cursor
constexpr int cursorTop = 180;
constexpr int cursorWidth = 4;
constexpr int cursorHeight = 5;
constexpr Point picturePlace{212, 40};
constexpr int titleTop = 40;
constexpr int storyTop = 60;
constexpr int storyWidth = 25;  // characters a line
constexpr int storyStep = 12;
constexpr int difficultyTop = 92;
constexpr int stagesTop = 102;
constexpr Point listPlace{260, 32};
constexpr int buttonsTop = 200;
constexpr int buttonGap = 8;  // from Start to the list
constexpr int exitGap = 72;   // from Exit to the list

enum class Outcome { open, start, exit };

struct Selection {
    int tab = selection_tab::campaigns;
    std::array<int, 2> rows{};  // the highlighted row of each tab
    std::string name;
    bool cursorIsGrey = false;
    double nextBlink = 0;
};

int& rowOf(Selection& s) { return s.rows[static_cast<std::size_t>(s.tab)]; }

Selection selectionFromPrefs() {
    Selection s;
    s.tab = prefs.campaignChoice == -1 ? selection_tab::scenarios : selection_tab::campaigns;
    s.rows = {indexOr(prefs.campaignChoice, campaignCount), indexOr(prefs.scenarioChoice, scenarioTableSize)};
    s.name = nameText(prefs.heroName);
    s.nextBlink = timer() + blinkTime;
    return s;
}

int characterLeft(std::size_t i) { return textLeft + glyphSize * static_cast<int>(i); }

void drawCursor(Selection& s, bool grey) {
    const int x = characterLeft(s.name.size()) + cursorGap;
    fillBox(x, cursorTop, x + cursorWidth - 1, cursorTop + cursorHeight - 1,
            grey ? colour::face : colour::yellow);
    s.cursorIsGrey = grey;
}

// The character and the cursor behind it.
void blankCharacter(std::size_t i) {
    const int x = characterLeft(i);
    fillBox(x, nameField.y1 + 1, x + 2 * glyphSize - 1, nameField.y2 - 1, colour::black);
}

void drawNameField(Selection& s) {
    drawText(textLeft, nameLabelTop, "Hero Name:");
    frameBox(nameField.x1, nameField.y1, nameField.x2, nameField.y2);
    drawText(textLeft, nameTop, s.name);
    drawCursor(s, false);
}

void placeWidgets() {
    Button& list = widget(id::list);
    Button& done = widget(id::done);
    placeButton(list, listPlace.x, listPlace.y);
    placeButton(done, list.x - buttonGap - done.width, buttonsTop);
    placeButton(widget(id::selectionExit), list.x - exitGap - done.width, buttonsTop);
    done.caption = "Start";
    widget(id::selectionExit).caption = "Exit";
}

void redrawTabs() { drawTabs(widget(id::tabs).selected); }

constexpr std::array<WidgetRow, 4> widgets{
    {{.id = id::list, .release = releaseMenu, .redraw = drawSelectionList},
     {.id = id::tabs, .release = releaseMenu, .redraw = redrawTabs},
     {.id = id::done},
     {.id = id::selectionExit}}};
constexpr Screen selectionScreen{screen_id::selection, "Select a game",
                                 [] { return std::span<const WidgetRow>(widgets); }};

void drawGround(Selection& s) {
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
    drawText(textLeft, titleTop, name, colour::yellow);
    drawText(textLeft, difficultyTop, difficultyName(difficulty));
}

void drawInfo(Selection& s) {
    if (s.tab == selection_tab::scenarios) {
        const Scenario& scenario = scenarioRow(scenarioAtPosition(rowOf(s)));
        return drawHeading(scenario.name, scenario.pictureTile, scenario.difficulty);
    }
    const Campaign& campaign = campaignRow(rowOf(s));
    drawHeading(campaign.name, campaign.pictureTile, campaign.difficulty);
    drawWrappedText(std::string(storyText(rowOf(s), 0)), textLeft, storyTop, storyWidth, storyStep);
    drawText(textLeft, stagesTop, std::to_string(campaign.scenarioCount) + " scenarios");
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
    const auto draw = [&] {
        drawGround(s);
        drawChoice(s);
    };
    const auto handle = [&](const ScreenEvent& event) {
        outcome = event.click ? handleClick(s, event.clicked) : handleKey(s, event.key);
        return outcome == Outcome::open;
    };
    runScreen(
        {.screen = selectionScreen, .draw = draw, .handle = handle, .wakeUp = [&] { return s.nextBlink; }});
    return outcome;
}

void storeChoice(const Selection& s) {
    storeName(prefs.heroName, s.name);
    const bool campaign = s.tab == selection_tab::campaigns;
    prefs.campaignChoice = campaign ? s.rows[selection_tab::campaigns] : -1;
    if (!campaign) prefs.scenarioChoice = s.rows[selection_tab::scenarios];
}

}  // namespace

bool runGameSelection() {
    Selection s = selectionFromPrefs();
    if (runUntilDecided(s) == Outcome::exit) return false;
    storeChoice(s);
    startNewGame();
    return true;
}

}  // namespace gloomdeck
