#include "tests/support/script.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <utility>

#include "content/locations.h"
#include "shell/layout.h"
#include "shell/main_loop.h"
#include "shell/places.h"

namespace gloomdeck {

namespace {

std::deque<Script::Step> pending;

bool handOut(InputQueue& queue) {
    if (pending.empty()) return false;
    const Script::Step step = std::move(pending.front());
    pending.pop_front();
    step(queue);
    return true;
}

// Hands itself out again until it is done.
struct Repeated {
    std::function<bool()> done;
    Script::Step step;
    int left;  // more often is a fault

    void operator()(InputQueue& queue) {
        if (done()) return;
        if (--left == 0) FAIL() << "a step was repeated for ever";
        pending.push_front(*this);
        step(queue);
    }
};

// One unfinished column after the other.
Point nextBottomTile() {
    int col = game.turns % columnCount;
    while (column(col).finished) col = (col + 1) % columnCount;
    return boardCell(col, bottomRow);
}

Point middleOf(const Rect& r) { return {(r.x1 + r.x2 + 1) / 2, (r.y1 + r.y2 + 1) / 2}; }

}  // namespace

Point boardCell(int col, int row) { return middleOf(boardGrid.cell(col, row)); }

Point statsCell(int item) { return middleOf(statsGrid.cell(0, item)); }

Point widgetCentre(int widgetId) {
    const Button& b = widget(widgetId);
    return {b.x + b.width / 2, b.y + b.height / 2};
}

void clickAt(InputQueue& queue, Point at) {
    pointerMoved(queue, at.x, at.y);
    buttonChanged(queue, true);
    buttonChanged(queue, false);
}

std::string gameBytes() { return {reinterpret_cast<const char*>(&game), sizeof game}; }

void giveHero(int n) {
    for (int item = 0; item < itemCount; ++item) count(item) = n;
}

Script& Script::then(Step step) {
    steps.push_back(std::move(step));
    return *this;
}

Script& Script::key(std::string_view text) {
    return then([text = std::string(text)](InputQueue& queue) { keyTyped(queue, text); });
}

Script& Script::type(std::string_view text) {
    for (const char character : text) key(std::string(1, character));
    return *this;
}

Script& Script::move(Point at) {
    return then([=](InputQueue& queue) { pointerMoved(queue, at.x, at.y); });
}

Script& Script::press(Point at) {
    return then([=](InputQueue& queue) {
        pointerMoved(queue, at.x, at.y);
        buttonChanged(queue, true);
    });
}

Script& Script::release(Point at) {
    return then([=](InputQueue& queue) {
        pointerMoved(queue, at.x, at.y);
        buttonChanged(queue, false);
    });
}

Script& Script::leave() {
    return then([](InputQueue& queue) { pointerLeft(queue); });
}

Script& Script::click(Point at) {
    return then([=](InputQueue& queue) { clickAt(queue, at); });
}

Script& Script::button(int widgetId) {
    return then([=](InputQueue& queue) { clickAt(queue, widgetCentre(widgetId)); });
}

Script& Script::closeWindow() {
    return then([](InputQueue& queue) { closeRequested(queue); });
}

Script& Script::wait(double seconds) {
    return then([=](InputQueue&) { script::advanceClock(seconds); });
}

Script& Script::check(std::function<void()> look) {
    return then([look = std::move(look)](InputQueue&) { look(); });
}

Script& Script::screen(std::string_view windowTitle) {
    return check([title = std::string(windowTitle)] { EXPECT_EQ(script::windowTitle(), title); });
}

Script& Script::newest(std::string_view message) {
    return check([text = std::string(message)] { EXPECT_EQ(messageBar.lines.front(), text); });
}

Script& Script::until(std::function<bool()> done, Step step) {
    return then(Repeated{.done = std::move(done), .step = std::move(step), .left = 3000});
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
    return until([] { return prefs.scenarioOver != 0; },
                 [](InputQueue& queue) {
                     clickAt(queue, nextBottomTile());
                     giveHero(200);
                 });
}

void startScript(const Script& script) {
    pending = script.steps;
    script::feedWhenIdle(handOut);
}

void finishScript() {
    EXPECT_TRUE(pending.empty()) << pending.size() << " steps of the script were not used";
    pending.clear();
}

void dropScript() { pending.clear(); }

int runToItsEnd(const std::string& folder) {
    script::setFolder(folder);
    script::setFramePeriod(0.25);  // few pictures: copying them is what takes time here
    try {
        runGloomdeck();
    } catch (const script::ProgramEnded& end) {
        return end.exitCode;
    } catch (const script::RanDry& dry) {
        ADD_FAILURE() << dry.what();
        ui.lockDepth = 0;
    }
    return -1;
}

int runProgram(const Script& script, const std::string& folder) {
    startScript(script);
    const int exitCode = runToItsEnd(folder);
    finishScript();
    return exitCode;
}

void PlayTest::SetUp() {
    GameTest::SetUp();
    resetProgram();
    folder = makeProgramFolder();
}

int PlayTest::restart(const Script& script) {
    resetProgram();
    return run(script);
}

int PlayTest::firstRun(const Script& script) {
    for (const char* name : {"DGDP.dat", "DGDG.dat"}) std::filesystem::remove(folder + "/Data/" + name);
    return restart(script);
}

void PlayTest::removePictures() { std::filesystem::remove_all(folder + "/gfx"); }

std::string PlayTest::dataFile(const std::string& name) const {
    std::ifstream file(folder + "/Data/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void PlayTest::writeDataFile(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder + "/Data/" + name, std::ios::binary) << bytes;
}

}  // namespace gloomdeck
