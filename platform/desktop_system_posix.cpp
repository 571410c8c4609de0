// The system around a desktop program where it keeps to POSIX.
#include <SDL_hints.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "platform/desktop_system.h"

namespace gloomdeck::host::desktop {

namespace {

namespace fs = std::filesystem;

std::atomic<bool>* endAsked = nullptr;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal may come in the middle of anything");

void noteEndSignal(int /*number*/) { *endAsked = true; }

void handleSignal(int number) {
    struct sigaction before {};
    sigaction(number, nullptr, &before);
    if (number == SIGHUP && before.sa_handler == SIG_IGN) return;  // started to outlive its terminal
    struct sigaction action {};
    action.sa_handler = noteEndSignal;
    sigemptyset(&action.sa_mask);
    sigaction(number, &action, nullptr);
}

// What Linux alone tells; another Unix without such files starts in the folder in which it is run.
std::string startedAs() {
    std::ifstream commandLine("/proc/self/cmdline", std::ios::binary);
    std::string name;
    std::getline(commandLine, name, '\0');
    return name;
}

std::string ownFolder() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    return (error ? fs::current_path(error) : program.parent_path()).string();
}

bool isSet(const char* variable) { return std::getenv(variable) != nullptr; }

// Where nothing speaks of Wayland its library would complain on standard error.
const char* windowSystems() {
    const bool wayland = isSet("XDG_RUNTIME_DIR") || isSet("WAYLAND_DISPLAY") || isSet("WAYLAND_SOCKET");
    return wayland ? "x11,wayland" : "x11";
}

}  // namespace

std::string startingFolder() {
    std::error_code error;
    const fs::path named = fs::path(startedAs()).parent_path();
    if (named.empty()) return ownFolder();
    if (named == ".") return fs::current_path(error).string();
    if (named == "/") return {};
    return fs::absolute(named, error).string();
}

void watchForEnd(std::atomic<bool>& asked, void (* /*save*/)()) {
    endAsked = &asked;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) handleSignal(number);
    std::signal(SIGPIPE, SIG_IGN);  // a display that went away answers a write with an error
}

double seconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void sleep(int milliseconds, const std::atomic<bool>& asked) {
    if (milliseconds <= 0) return;
    timespec left{.tv_sec = milliseconds / 1000, .tv_nsec = milliseconds % 1000 * 1'000'000L};
    while (!asked && nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
}

void chooseWindowSystem() {
    SDL_SetHint(SDL_HINT_VIDEODRIVER, windowSystems());
    setenv("SDL_VIDEO_X11_WMCLASS", "gloomdeck", 0);
    setenv("SDL_VIDEO_WAYLAND_WMCLASS", "gloomdeck", 0);
}

void say(const std::string& line) { std::fprintf(stderr, "gloomdeck: %s\n", line.c_str()); }

void sayWithoutWindow(const std::string& line) { say(line); }

void endAtOnce(int exitCode) { _exit(exitCode); }

}  // namespace gloomdeck::host::desktop
