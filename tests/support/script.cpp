#include "tests/support/script.h"

#include <memory>
#include <utility>

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

Point middleOf(const Rect& r) { return {(r.x1 + r.x2 + 1) / 2, (r.y1 + r.y2 + 1) / 2}; }

}  // namespace

Point boardCell(int col, int row) { return middleOf(boardGrid.cell(col, row)); }

Point statsCell(int item) { return middleOf(statsGrid.cell(0, item)); }

Point widgetCentre(int widgetId) {
    const Button& b = widget(widgetId);
    return {b.x + b.width / 2, b.y + b.height / 2};
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
    return then([=](InputQueue& queue) {
        pointerMoved(queue, at.x, at.y);
        buttonChanged(queue, true);
        buttonChanged(queue, false);
    });
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

void startScript(const Script& script) {
    pending = script.steps;
    script::feedWhenIdle(handOut);
}

void finishScript() {
    EXPECT_TRUE(pending.empty()) << pending.size() << " steps of the script were not used";
    pending.clear();
}

int runProgram(const Script& script, const std::string& folder) {
    script::setFolder(folder);
    startScript(script);
    int exitCode = -1;
    try {
        runGloomdeck();
    } catch (const script::ProgramEnded& end) {
        exitCode = end.exitCode;
    } catch (const script::RanDry& dry) {
        ADD_FAILURE() << dry.what();
        ui.lockDepth = 0;
    }
    finishScript();
    return exitCode;
}

void PlayTest::SetUp() {
    GameTest::SetUp();
    resetProgram();
    folder = makeProgramFolder();
}

}  // namespace gloomdeck
