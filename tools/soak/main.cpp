// Plays random games through the real screens, closes the program and starts it again, for as long as asked.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

#include "platform/host_script.h"
#include "shell/main_loop.h"
#include "shell/ui_state.h"
#include "tests/support/reset.h"
#include "tools/common/program_folder.h"
#include "tools/soak/player.h"
#include "tools/soak/watch.h"

namespace gloomdeck::soak {

namespace {

constexpr long mostPollsToEnd = 1000000;
constexpr double displayPeriod = 1.0 / 60;
constexpr double brokenDisplay = 1.0e6;  // takes next to no picture, which leaves more time to play

struct Options {
    double seconds = 10;
    std::uint64_t seed = std::random_device{}();
    std::string pictures;  // a folder with the picture files; empty: none
};

struct WindowLost {};

std::chrono::steady_clock::time_point end;
long pollsAfterEnd = 0;

bool timeIsUp() { return std::chrono::steady_clock::now() >= end; }

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
}

std::string playUntilTheEnd(const Options& options) {
    seedPlayer(options.seed);
    end = std::chrono::steady_clock::now() +
          std::chrono::milliseconds(static_cast<long>(options.seconds * 1000));
    try {
        const ProgramFolder folder(options.pictures);
        while (!timeIsUp()) runOnce(folder);
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
        std::fprintf(stderr, "usage: gloomdeck_soak [--seconds N] [--seed N] [--pictures FOLDER]\n");
        return 2;
    }
    std::printf("seed %llu\n", static_cast<unsigned long long>(options.seed));
    std::fflush(stdout);
    const std::string why = playUntilTheEnd(options);
    std::printf("%ld moves, %ld games, %ld starts\n", tally.moves, tally.games, tally.starts);
    if (why.empty())
        std::printf("PASS soak\n");
    else
        std::printf("FAIL soak: %s (seed %llu)\n", why.c_str(),
                    static_cast<unsigned long long>(options.seed));
    return why.empty() ? 0 : 1;
}

}  // namespace gloomdeck::soak

int main(int argc, char** argv) { return gloomdeck::soak::run(argc, argv); }
