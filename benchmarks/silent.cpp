// Moves of the autoplayer on the rules alone, without a picture.
#include <benchmark/benchmark.h>

#include <random>

#include "autoplayer/autoplayer.h"
#include "benchmarks/session.h"
#include "content/game_flow.h"
#include "content/scenarios.h"
#include "platform/random.h"
#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "rules/game_state.h"
#include "rules/show_silent.h"

namespace gloomdeck {

namespace {

std::mt19937_64 stream;

double nextOfStream() { return static_cast<double>(stream() >> 11) * 0x1.0p-53; }

/// One game after the other: every scenario with one seed, then with the next.
void startNextGame() {
    static int scenario = -1;
    static std::uint64_t seed = 0;
    scenario = (scenario + 1) % scenarioTableSize;
    if (scenario == 0) ++seed;
    stream.seed(seed);
    game = {};
    prefs.scenarioChoice = scenario;
    startNewGame();
}

void playGames(benchmark::State& state) {
    while (state.KeepRunning())
        for (int left = movesOfGames; left > 0;) {
            startNextGame();
            silentTurnLimit = left;
            RunAutoplayer();
            left -= game.turns;
        }
}

}  // namespace

}  // namespace gloomdeck

int main(int argc, char** argv) {
    using namespace gloomdeck;
    benchmark::Initialize(&argc, argv);
    useRandomSource(nextOfStream);
    prefs.campaignChoice = none;
    prefs.switches = switchesWith(&SwitchType::allowsMoves);
    benchmark::RegisterBenchmark("silent games", playGames);
    return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 2;
}
