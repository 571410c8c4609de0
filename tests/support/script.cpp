#include "tests/support/script.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "content/locations.h"
#include "platform/frame.h"
#include "shell/main_loop.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/places.h"

namespace gloomdeck {

namespace {

std::deque<Script::Step> pending;

// Presents name the rows that changed, and no others are shown: one that was not named stays as it was.
bool isShownAsDrawn() { return ui.lockDepth != 0 || script::shownFrame() == screen().pixels; }

bool handOut(InputQueue& queue) {
    EXPECT_TRUE(isShownAsDrawn());
    if (pending.empty()) return false;
    const Script::Step step = pending.front();
    pending.pop_front();
    step(queue);
    return true;
}

// Clicks one unfinished column after the other; hands itself out again until the board is done.
void clickTiles(InputQueue& queue, int most) {
    if (prefs.scenarioOver) return;
    if (most == 0) FAIL() << "the board is never cleared";
    pending.emplace_front([=](InputQueue& next) { clickTiles(next, most - 1); });
    int col = game.turns % columnCount;
    while (column(col).finished) col = (col + 1) % columnCount;
    clickAt(queue, boardCell(col, bottomRow));
    giveHero(200);
}

Point middleOf(const Rect& r) { return {(r.x1 + r.x2 + 1) / 2, (r.y1 + r.y2 + 1) / 2}; }

}  // namespace

Point boardCell(int col, int row) { return middleOf(boardGrid.cell(col, row)); }

Point statsCell(int item) { return middleOf(statsGrid.cell(0, item)); }

Point widgetCentre(int widgetId) {
    const Button& b = widget(widgetId);
    return {b.x + b.width / 2, b.y + b.height / 2};
}

void pointAt(InputQueue& queue, Point at, const std::vector<bool>& changes) {
    pointerMoved(queue, at.x, at.y);
    for (const bool down : changes) buttonChanged(queue, down);
}

std::string gameBytes() { return {reinterpret_cast<const char*>(&game), sizeof game}; }

void giveHero(int n) { std::fill_n(game.inventory.begin(), itemCount, n); }

Script& Script::then(const Step& step) {
    steps.push_back(step);
    return *this;
}

Script& Script::check(const std::function<void()>& look) {
    return then([=](InputQueue&) { look(); });
}

Script& Script::screen(const std::string& title) {
    return check([=] { EXPECT_EQ(script::windowTitle(), title); });
}

Script& Script::mouse(Point at, const std::vector<bool>& changes) {
    return then([=](InputQueue& queue) { pointAt(queue, at, changes); });
}

Script& Script::button(int widgetId) {
    return then([=](InputQueue& queue) { clickAt(queue, widgetCentre(widgetId)); });
}

Script& Script::wait(double seconds) {
    return check([=] { script::advanceClock(seconds); });
}

Script& Script::key(std::string_view text) {
    return then([text = std::string(text)](InputQueue& queue) { keyTyped(queue, text); });
}

Script& Script::type(std::string_view text) {
    for (const char character : text) key(std::string(1, character));
    return *this;
}

Script& Script::startScenario(int listPosition) {
    passTitle().key(keycode::right);
    for (int i = 0; i < listPosition; ++i) key(keycode::down);
    return key(keycode::enter);
}

Script& Script::hurry() {
    return check([] {
        for (int col = 0; col < columnCount; ++col)
            column(col).drawn = locationRow(column(col).location).deckLength - 8;
    });
}

Script& Script::clearBoard() {
    return then([](InputQueue& queue) { clickTiles(queue, 3000); });
}

void playNext(const Script& script) {
    pending.insert(pending.begin(), script.steps.begin(), script.steps.end());
}

void startScript(const Script& script) {
    pending = script.steps;
    script::feedWhenIdle(handOut);
}

void finishScript() {
    EXPECT_TRUE(pending.empty()) << pending.size() << " steps of the script were not used";
    pending.clear();
}

void PlayTest::SetUp() {
    resetProgram();
    folder = makeProgramFolder(withPictures);
}

int PlayTest::run(const Script& player) {
    script::setFolder(folder);
    script::setFramePeriod(0.25);  // few pictures: copying them is what takes time here
    startScript(player);
    try {
        runGloomdeck();
    } catch (const script::ProgramEnded& end) {
        finishScript();
        return end.exitCode;
    }
    return -1;
}

int PlayTest::restart(const Script& player) {
    resetProgram();
    return run(player);
}

int PlayTest::firstRun(const Script& player) {
    folder = makeProgramFolder(withPictures);
    return restart(player);
}

std::string PlayTest::dataFile(const std::string& name) const {
    std::ifstream file(folder + "/Data/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void PlayTest::writeDataFile(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder + "/Data/" + name, std::ios::binary) << bytes;
}

}  // namespace gloomdeck
