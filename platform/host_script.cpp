#include "platform/host_script.h"

#include <utility>

#include "platform/host.h"

namespace gloomdeck {

namespace {

constexpr int mostDryWaits = 2000;

struct ScriptHost {
    double clock = 1000.0;
    double framePeriod = 0.0;
    long presents = 0;
    Rows presented;  // since they were taken last
    long slept = 0;
    int dryWaits = 0;
    std::size_t framePixels = 0;
    std::string folder = ".";
    std::string title;
    std::string told;
    std::vector<Colour> shown;
    script::Feeder idle;
    script::Feeder pausing;
    script::Feeder polling;
    void (*save)() = nullptr;
    InputQueue* queue = nullptr;  // the one that was pumped last
};

ScriptHost state;

bool feed(const script::Feeder& feeder) { return feeder && state.queue != nullptr && feeder(*state.queue); }

}  // namespace

namespace script {

void feedWhenIdle(Feeder feeder) { state.idle = std::move(feeder); }
void feedWhenPausing(Feeder feeder) { state.pausing = std::move(feeder); }
void feedAtPoll(Feeder feeder) { state.polling = std::move(feeder); }
void advanceClock(double seconds) { state.clock += seconds; }
void setFolder(const std::string& folder) { state.folder = folder; }
void setFramePeriod(double seconds) { state.framePeriod = seconds; }
const std::vector<Colour>& shownFrame() { return state.shown; }
long presentCount() { return state.presents; }

Rows takePresentedRows() { return std::exchange(state.presented, Rows{}); }
const std::string& windowTitle() { return state.title; }
const std::string& toldText() { return state.told; }
long sleptMilliseconds() { return state.slept; }
void loseWindow() {
    if (state.save) state.save();
}
void reset() { state = {}; }

}  // namespace script

namespace host {

void open(int width, int height) {
    state.framePixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

void setTitle(const std::string& title) { state.title = title; }

void tell(const std::string& text) { state.told = text; }

void present(const Colour* pixels, Rows changed) {
    state.shown.assign(pixels, pixels + state.framePixels);
    ++state.presents;
    state.presented = joined(state.presented, changed);
}

double framePeriod() { return state.framePeriod; }

void waitForRetrace() {}

void pump(InputQueue& queue) {
    state.queue = &queue;
    feed(state.polling);
}

void sleep(int milliseconds) {
    feed(state.pausing);
    state.clock += milliseconds / 1000.0;
    state.slept += milliseconds;
}

void waitForInput(double seconds) {
    if (feed(state.idle)) {
        state.dryWaits = 0;
        return;
    }
    state.clock += seconds;
    if (++state.dryWaits > mostDryWaits) throw script::RanDry();
}

double seconds() { return state.clock; }

std::string programFolder() { return state.folder; }

void onLost(void (*save)()) { state.save = save; }

void end(int exitCode) { throw script::ProgramEnded{exitCode}; }

}  // namespace host

}  // namespace gloomdeck
