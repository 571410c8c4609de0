// How long the autoplayer takes for a move, beside what one copy of the frame takes in the same run.
// Processor time counts, so that a busy machine changes little.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "autoplayer/assess.h"
#include "autoplayer/autoplayer.h"
#include "content/game_flow.h"
#include "content/scenarios.h"
#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/host_script.h"
#include "platform/input.h"
#include "platform/random.h"
#include "prefs/prefs.h"
#include "rules/board.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/tile_set.h"

namespace gloomdeck {

namespace {

constexpr const char* copyName = "copy of one frame";
constexpr const char* choiceName = "assessment and choice";
constexpr const char* moveName = "whole drawn move";

constexpr double displayPeriod = 1.0 / 60;
constexpr int longestGame = 1000;  // moves
constexpr int seedsPerScenario = 5;
constexpr int positionStep = 7;  // every seventh position of a game is assessed

std::mt19937_64 stream;

double nextOfStream() { return static_cast<double>(stream() >> 11) * 0x1.0p-53; }

void startGame(int scenario, std::uint64_t seed) {
    stream.seed(seed);
    game = {};
    prefs.scenarioChoice = scenario;
    startNewGame();
    openPlayScreen();
}

/// One game after the other: every scenario with one seed, then with the next.
void startNextGame() {
    static int scenario = -1;
    static std::uint64_t seed = 0;
    scenario = (scenario + 1) % scenarioTableSize;
    if (scenario == 0) ++seed;
    startGame(scenario, seed);
}

/// Plays one move; false when there is none. The Space that stops the run is read before the move is played.
bool playMove() {
    keyTyped(inputQueue(), keycode::space);
    const int before = game.turns;
    RunAutoplayer();
    if (game.turns > before) return true;
    dropWaitingKeys(inputQueue());
    return false;
}

/// The display goes on while the game computes.
void letTimePass() {
    static auto last = std::chrono::steady_clock::now();
    const auto now = std::chrono::steady_clock::now();
    script::advanceClock(std::chrono::duration<double>(now - last).count());
    last = now;
}

std::vector<GameState> positionsOfGames() {
    std::vector<GameState> positions;
    for (int scenario = 0; scenario < scenarioTableSize; ++scenario)
        for (std::uint64_t seed = 1; seed <= seedsPerScenario; ++seed) {
            startGame(scenario, seed);
            for (int move = 0; move < longestGame && playMove(); ++move)
                if (move % positionStep == 0) positions.push_back(game);
        }
    return positions;
}

void copyFrame(benchmark::State& state) {
    const std::vector<Colour> from = screen().pixels;
    std::vector<Colour> to(from.size());
    while (state.KeepRunning()) {
        std::memcpy(to.data(), from.data(), from.size() * sizeof(Colour));
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}

void assessAndChoose(benchmark::State& state) {
    static const std::vector<GameState> positions = positionsOfGames();
    std::size_t next = 0;
    while (state.KeepRunning()) {
        game = positions[next];
        next = next + 1 < positions.size() ? next + 1 : 0;
        AllColumnsFinished();
        benchmark::DoNotOptimize(chooseColumn(assessBoard(eyeRowsNow())));
    }
}

void drawMove(benchmark::State& state) {
    startNextGame();
    while (state.KeepRunning()) {
        letTimePass();
        if (playMove() && game.turns < longestGame) continue;
        state.PauseTiming();
        startNextGame();
        state.ResumeTiming();
    }
}

/// Keeps the median of every benchmark's repetitions.
class Medians : public benchmark::ConsoleReporter {
  public:
    Medians() : ConsoleReporter(OO_None) {}
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.aggregate_name == "median") times[run.run_name.function_name] = run.GetAdjustedCPUTime();
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> times;
};

bool printRatio(const Medians& medians, const char* name, double goal) {
    const double ratio = medians.times.at(name) / medians.times.at(copyName);
    std::printf("%-24s %10.3f us %8.3f frame copies, goal %.2f: %s\n", name, medians.times.at(name), ratio,
                goal, ratio <= goal ? "met" : "MISSED");
    return ratio <= goal;
}

void setUp(const char* folder) {
    script::setFolder(folder);
    script::setFramePeriod(displayPeriod);
    layOutWidgets();
    openWindow(frameWidth, frameHeight);
    setDefaultColours(colour::text, colour::panel);
    loadTiles();
    useRandomSource(nextOfStream);
    prefs.GameSpeed = speedCount - 1;
    prefs.currentScreen = screen_id::play;
    prefs.campaignChoice = -1;
    prefs.goodStuff = prefs.fairlyEasy = prefs.obstacles = prefs.grief = prefs.spellsSkills = 1;
}

void measureWell(benchmark::internal::Benchmark* benchmark) {
    benchmark->Unit(benchmark::kMicrosecond)->Repetitions(9)->MinTime(0.2)->ReportAggregatesOnly();
}

BENCHMARK(copyFrame)->Name(copyName)->Apply(measureWell);
BENCHMARK(assessAndChoose)->Name(choiceName)->Apply(measureWell);
BENCHMARK(drawMove)->Name(moveName)->Apply(measureWell);

int runBenchmarks() {
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    if (medians.times.size() < 3) return 0;  // a filter chose some of them
    std::printf("\n");
    const bool choiceIsFast = printRatio(medians, choiceName, 0.15);
    const bool moveIsFast = printRatio(medians, moveName, 3.0);
    return choiceIsFast && moveIsFast ? 0 : 1;
}

}  // namespace

}  // namespace gloomdeck

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: gloomdeck_bench FOLDER [--benchmark_...]; FOLDER holds gfx\n");
        return 2;
    }
    gloomdeck::setUp(argv[1]);
    return gloomdeck::runBenchmarks();
}
