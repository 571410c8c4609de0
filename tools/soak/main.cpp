// Plays random games through the real screens, closes the program and starts it again, for as long as asked
// or until it has been given so much input; then its memory must not have grown either.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <utility>

#include "platform/host_script.h"
#include "platform/input.h"
#include "shell/main_loop.h"
#include "shell/widgets/ui_state.h"
#include "tests/support/reset.h"
#include "tools/common/program_folder.h"
#include "tools/soak/player.h"
#include "tools/soak/watch.h"

namespace gloomdeck::soak {

namespace {

constexpr long mostPollsToEnd = 1000000;
constexpr double displayPeriod = 1.0 / 60;
constexpr double brokenDisplay = 1.0e6;  // takes next to no picture, which leaves more time to play

constexpr long page = 4096;            // bytes
constexpr long mostGrowth = 8L << 20;  // bytes, from a tenth of the events on; sanitizers keep books

struct Options {
    double seconds = 10;
    long events = 0;  // 0: the seconds count
    std::uint64_t seed = std::random_device{}();
    std::string pictures;  // a folder with the picture files; empty: none
};

struct WindowLost {};

std::chrono::steady_clock::time_point end;
long lastEvent = std::numeric_limits<long>::max();
long pollsAfterEnd = 0;

long eventsSoFar() { return tally.events + inputQueue().received; }

bool timeIsUp() { return std::chrono::steady_clock::now() >= end || eventsSoFar() >= lastEvent; }

/// Bytes that the process has in memory; 0 where that cannot be told.
long residentMemory() {
    std::ifstream file("/proc/self/statm");
    long whole = 0;
    long resident = 0;
    file >> whole >> resident;
    return resident * page;
}

bool whenIdle(InputQueue& queue) {
    watch(true);
    act(queue);
    return true;
}

bool atPoll(InputQueue& queue) {
    watch(false);
    if (timeIsUp()) {
        endRequested(queue);
        if (++pollsAfterEnd > mostPollsToEnd) throw Broken("the program does not end when it should");
        return true;
    }
    interrupt(queue);
    if (oneIn(1000000)) {
        script::loseWindow();
        throw WindowLost();
    }
    return true;
}

// One life of the program, from its start to its end.
void runOnce(const ProgramFolder& folder) {
    const SavedFiles before = savedFiles(folder);
    forgetProgram();
    pollsAfterEnd = 0;
    watchFromStart();
    script::setFolder(folder.path);
    script::setFramePeriod(oneIn(4) ? displayPeriod : brokenDisplay);
    script::advanceClock(std::chrono::duration<double>(1 + tally.moves).count());
    script::feedWhenIdle(whenIdle);
    script::feedAtPoll(atPoll);
    try {
        runGloomdeck();
    } catch (const script::ProgramEnded& ended) {
        if (ended.exitCode != 0) throw Broken("the exit code is " + std::to_string(ended.exitCode));
        if (const std::string why = savedFault(folder, before); !why.empty()) throw Broken(why);
    } catch (const WindowLost&) {
        ui.lockDepth = 0;
    }
    tally.events += std::exchange(inputQueue().received, 0);
}

void playUntil(long event, const ProgramFolder& folder) {
    lastEvent = event;
    while (!timeIsUp()) runOnce(folder);
}

void playEvents(long events, const ProgramFolder& folder) {
    playUntil(events / 10, folder);
    const long before = residentMemory();
    playUntil(events, folder);
    const long after = residentMemory();
    std::printf("%ld kB resident after a tenth, %ld kB at the end\n", before / 1024, after / 1024);
    if (after - before > mostGrowth) throw Broken("the memory has grown");
}

std::string playUntilTheEnd(const Options& options) {
    seedPlayer(options.seed);
    end = std::chrono::steady_clock::time_point::max();
    if (options.events == 0)
        end = std::chrono::steady_clock::now() +
              std::chrono::milliseconds(static_cast<long>(options.seconds * 1000));
    try {
        const ProgramFolder folder(options.pictures);
        if (options.events > 0)
            playEvents(options.events, folder);
        else
            playUntil(std::numeric_limits<long>::max(), folder);
    } catch (const std::exception& fault) {
        return fault.what();
    }
    return {};
}

bool readOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view name = argv[i];
        if (name == "--seconds")
            options.seconds = std::strtod(argv[i + 1], nullptr);
        else if (name == "--events")
            options.events = std::strtol(argv[i + 1], nullptr, 10);
        else if (name == "--seed")
            options.seed = std::strtoull(argv[i + 1], nullptr, 10);
        else if (name == "--pictures")
            options.pictures = argv[i + 1];
        else
            return false;
    }
    return argc % 2 == 1;
}

}  // namespace

int run(int argc, char** argv) {
    Options options;
    if (!readOptions(argc, argv, options)) {
        std::fprintf(stderr,
                     "usage: gloomdeck_soak [--seconds N | --events N] [--seed N] [--pictures FOLDER]\n");
        return 2;
    }
    std::printf("seed %llu\n", static_cast<unsigned long long>(options.seed));
    std::fflush(stdout);
    const std::string why = playUntilTheEnd(options);
    std::printf("%ld events, %ld moves, %ld games, %ld starts\n", tally.events, tally.moves, tally.games,
                tally.starts);
    if (why.empty())
        std::printf("PASS soak\n");
    else
        std::printf("FAIL soak: %s (seed %llu)\n", why.c_str(),
                    static_cast<unsigned long long>(options.seed));
    return why.empty() ? 0 : 1;
}

}  // namespace gloomdeck::soak

int main(int argc, char** argv) { return gloomdeck::soak::run(argc, argv); }
