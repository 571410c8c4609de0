// The autoplayer's thought alone, and whole moves with all that they draw and show.
#include "autoplayer/autoplayer.h"

#include <benchmark/benchmark.h>

#include <chrono>

#include "autoplayer/assess.h"
#include "benchmarks/session.h"
#include "benchmarks/suites.h"
#include "content/scenarios.h"
#include "platform/host_script.h"
#include "rules/board.h"

namespace gloomdeck {

namespace {

constexpr int longestGame = 1000;  // moves

/// One game after the other: every scenario with one seed, then with the next.
void startNextGame() {
    static int scenario = -1;
    static std::uint64_t seed = 0;
    scenario = (scenario + 1) % scenarioTableSize;
    if (scenario == 0) ++seed;
    startGame(scenario, seed);
}

/// The display goes on while the game computes.
void letTimePass() {
    static auto last = std::chrono::steady_clock::now();
    const auto now = std::chrono::steady_clock::now();
    script::advanceClock(std::chrono::duration<double>(now - last).count());
    last = now;
}

void assessAndChoose(benchmark::State& state) {
    static const std::vector<GameState> positions = positionsOfGames(5, 7, longestGame);
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

void playGames(benchmark::State& state, double framePeriod) {
    script::setFramePeriod(framePeriod);
    while (state.KeepRunning()) {
        startNextGame();
        for (int moves = 0; moves < movesOfGames; ++moves) {
            letTimePass();
            if (!playMove()) startNextGame();
        }
    }
    script::setFramePeriod(displayPeriod);
}

}  // namespace

void registerAutoplayer() {
    benchmark::RegisterBenchmark("assessment and choice", assessAndChoose);
    benchmark::RegisterBenchmark("drawn move", drawMove);
    benchmark::RegisterBenchmark("drawn games", playGames, displayPeriod);
    benchmark::RegisterBenchmark("shown games", playGames, 0.0);  // every picture of them
}

}  // namespace gloomdeck
