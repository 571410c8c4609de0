// The host of the desktop program: a window, the system's clock and signals.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "platform/desktop_system.h"
#include "platform/host.h"
#include "platform/host_sdl_input.h"
#include "platform/host_sdl_window.h"

namespace gloomdeck::host {

namespace {

constexpr double patience = 2.0;     // seconds that the program has to end itself after a signal
constexpr double longestWait = 0.5;  // seconds; a signal just before a wait does not end it

enum class Ending { no, closing, closed };

std::atomic<bool> endSignalled = false;
double endSeenAt = 0;  // seconds; 0: no end was asked for
Ending ending = Ending::no;
int endCode = 0;
std::string lastTitle;
void (*saveWhenLost)() = nullptr;

void saveOnce() {
    if (const auto save = std::exchange(saveWhenLost, nullptr)) save();
}

// A lost display ends the process by exit() from inside a call of the window system's library.
void noteProcessExit() {
    if (ending == Ending::closed) return;
    if (ending == Ending::closing) desktop::endAtOnce(endCode);
    saveOnce();
    desktop::endAtOnce(EXIT_SUCCESS);
}

void noteEnd(InputQueue& queue) {
    if (endSeenAt > 0) return;
    endSignalled = true;  // a wait looks at this alone
    endSeenAt = seconds();
    endRequested(queue);
}

}  // namespace

void open(int width, int height) {
    desktop::watchForEnd(endSignalled, saveOnce);
    programFolder();  // made before the handler below, it is still there when that saves
    std::atexit(noteProcessExit);
    if (openDesktopWindow({width, height}, lastTitle)) return;
    desktop::sayWithoutWindow("there is no display to open a window on; start it on a desktop");
    end(EXIT_FAILURE);
}

void setTitle(const std::string& title) {
    lastTitle = title;
    titleDesktopWindow(title);
}

void tell(const std::string& /*text*/) {}

void present(const Colour* pixels, std::span<const Rows> changed) { showFrame(pixels, changed); }

double framePeriod() { return displayPeriod(); }

void pump(InputQueue& queue) {
    if (takeWindowEvents(queue) || endSignalled) noteEnd(queue);
    if (endSeenAt <= 0 || seconds() - endSeenAt < patience) return;
    saveOnce();
    end(EXIT_SUCCESS);
}

void sleep(int milliseconds) { desktop::sleep(milliseconds, endSignalled); }

void waitForInput(double seconds) {
    const double wait = std::clamp(seconds, 0.0, longestWait);
    if (!endSignalled && wait > 0) awaitWindowEvent(static_cast<int>(std::ceil(wait * 1000.0)));
}

double seconds() { return desktop::seconds(); }

std::string programFolder() {
    static const std::string folder = desktop::startingFolder();
    return folder;
}

void onLost(void (*save)()) { saveWhenLost = save; }

void warn(const std::string& line) { desktop::say(line); }

void end(int exitCode) {
    ending = Ending::closing;
    endCode = exitCode;
    closeDesktopWindow();
    ending = Ending::closed;
    std::exit(exitCode);
}

}  // namespace gloomdeck::host
