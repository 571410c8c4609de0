// The host of the desktop program: a window, the system's clock and signals.
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <utility>

#include "platform/host.h"
#include "platform/host_sdl_input.h"
#include "platform/host_sdl_window.h"

namespace gloomdeck::host {

namespace {

constexpr double patience = 2.0;     // seconds that the program has to end itself after a signal
constexpr double longestWait = 0.5;  // seconds; a signal just before a wait does not end it

enum class Ending { no, closing, closed };

volatile std::sig_atomic_t endSignalled = 0;
double endSeenAt = 0;  // seconds; 0: no end was asked for
Ending ending = Ending::no;
int endCode = 0;
std::string lastTitle;
void (*saveWhenLost)() = nullptr;

void noteEndSignal(int /*number*/) { endSignalled = 1; }

void handleSignal(int number) {
    struct sigaction before {};
    sigaction(number, nullptr, &before);
    if (number == SIGHUP && before.sa_handler == SIG_IGN) return;  // started to outlive its terminal
    struct sigaction action {};
    action.sa_handler = noteEndSignal;
    sigemptyset(&action.sa_mask);
    sigaction(number, &action, nullptr);
}

void handleSignals() {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) handleSignal(number);
    std::signal(SIGPIPE, SIG_IGN);  // a display that went away answers a write with an error
}

void saveOnce() {
    if (const auto save = std::exchange(saveWhenLost, nullptr)) save();
}

// A lost display ends the process by exit() from inside a call of the window system's library.
void noteProcessExit() {
    if (ending == Ending::closed) return;
    if (ending == Ending::closing) _exit(endCode);
    saveOnce();
    _exit(0);
}

void noteEnd(InputQueue& queue) {
    if (endSeenAt > 0) return;
    endSignalled = 1;  // a wait looks at this alone
    endSeenAt = seconds();
    endRequested(queue);
}

std::string startedAs() {
    std::ifstream commandLine("/proc/self/cmdline", std::ios::binary);
    std::string name;
    std::getline(commandLine, name, '\0');
    return name;
}

// The folder of the path by which it was started, not of what a link there leads to: the installed program is
// started through a link in each player's own folder, and that player's files are there.
std::string findFolder() {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path named = fs::path(startedAs()).parent_path();
    if (named.empty()) return fs::read_symlink("/proc/self/exe", error).parent_path().string();
    if (named == ".") return fs::current_path(error).string();
    if (named == "/") return {};
    return fs::absolute(named, error).string();
}

}  // namespace

void open(int width, int height) {
    handleSignals();
    programFolder();  // made before the handler below, it is still there when that saves
    std::atexit(noteProcessExit);
    if (openDesktopWindow({width, height}, lastTitle)) return;
    warn("there is no display to open a window on; start it on a desktop");
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

void sleep(int milliseconds) {
    if (milliseconds <= 0) return;
    timespec left{.tv_sec = milliseconds / 1000, .tv_nsec = milliseconds % 1000 * 1'000'000L};
    while (!endSignalled && nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
}

void waitForInput(double seconds) {
    const double wait = std::clamp(seconds, 0.0, longestWait);
    if (!endSignalled && wait > 0) awaitWindowEvent(static_cast<int>(std::ceil(wait * 1000.0)));
}

double seconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

std::string programFolder() {
    static const std::string folder = findFolder();
    return folder;
}

void onLost(void (*save)()) { saveWhenLost = save; }

void warn(const std::string& line) { std::fprintf(stderr, "gloomdeck: %s\n", line.c_str()); }

void end(int exitCode) {
    ending = Ending::closing;
    endCode = exitCode;
    closeDesktopWindow();
    ending = Ending::closed;
    std::exit(exitCode);
}

}  // namespace gloomdeck::host
