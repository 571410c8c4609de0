// Plays random games through the real screens, closes the program and starts it again, for as long as asked.
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "platform/frame.h"
#include "platform/host_script.h"
#include "prefs/prefs.h"
#include "rules/game_state.h"
#include "shell/main_loop.h"
#include "shell/ui_state.h"
#include "tests/support/reset.h"
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

// The folder that the program under test runs in.
struct ProgramFolder {
    explicit ProgramFolder(const std::string& pictures)
        : path((std::filesystem::temp_directory_path() / "gloomdeck-soak-XXXXXX").string()) {
        if (!mkdtemp(path.data())) throw Broken("no temporary folder");
        std::filesystem::create_directories(path + "/Data");
        if (!pictures.empty())
            std::filesystem::create_directory_symlink(std::filesystem::absolute(pictures), path + "/gfx");
    }
    ~ProgramFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    std::string path;
};

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

std::string contentsOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void checkSavedGame(const std::string& folder) {
    const std::string_view record(reinterpret_cast<const char*>(&game), sizeof game);
    if (contentsOf(folder + "/Data/DGDP.dat") != record) throw Broken("the saved game is not the one played");
}

// One life of the program, from its start to its end.
void runOnce(const std::string& folder) {
    forgetProgram();
    pollsAfterEnd = 0;
    watchFromStart();
    script::setFolder(folder);
    script::setFramePeriod(oneIn(4) ? displayPeriod : brokenDisplay);
    script::advanceClock(std::chrono::duration<double>(1 + tally.moves).count());
    script::feedWhenIdle(whenIdle);
    script::feedAtPoll(atPoll);
    try {
        runGloomdeck();
    } catch (const script::ProgramEnded& ended) {
        if (ended.exitCode != 0) throw Broken("the exit code is " + std::to_string(ended.exitCode));
        checkSavedGame(folder);
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
        while (!timeIsUp()) runOnce(folder.path);
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
