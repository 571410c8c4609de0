// A host without a machine: what a script sets, and what it can look at.
#include "platform/host_script.h"

#include <algorithm>
#include <utility>

#include "platform/host.h"

namespace gloomdeck {

namespace {

constexpr int mostDryWaits = 2000;

struct ScriptHost {
    double clock = 1000.0;
    double framePeriod = 0.0;
    long presents = 0;
    long slept = 0;
    int dryWaits = 0;
    int frameWidth = 0;
    std::string folder = ".";
    std::string title;
    std::string told;
    std::vector<Colour> shown;
    std::vector<std::string> warnings;
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
const std::string& windowTitle() { return state.title; }
const std::vector<std::string>& warnings() { return state.warnings; }
const std::string& toldText() { return state.told; }
long sleptMilliseconds() { return state.slept; }
void loseWindow() {
    if (state.save) state.save();
}
void reset() { state = {}; }

}  // namespace script

namespace host {

void open(int width, int height) {
    state.frameWidth = width;
    state.shown.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0xFF000000);
}

void setTitle(const std::string& title) { state.title = title; }

void tell(const std::string& text) { state.told = text; }

void present(const Colour* pixels, std::span<const Rows> changed) {
    // Only what was named: a row that changed unnamed stays old, and the tests see it.
    for (const Rows rows : changed)
        std::copy(pixels + state.frameWidth * rows.first, pixels + state.frameWidth * (rows.last + 1),
                  state.shown.begin() + state.frameWidth * rows.first);
    ++state.presents;
}

double framePeriod() { return state.framePeriod; }

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

void warn(const std::string& line) { state.warnings.push_back(line); }

void end(int exitCode) { throw script::ProgramEnded{exitCode}; }

}  // namespace host

}  // namespace gloomdeck
