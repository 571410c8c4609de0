// The whole play screen drawn anew in the middle of games of most scenarios, beside a copy of the frame and
// the puts alone through other libraries.
#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "benchmarks/peers.h"
#include "benchmarks/session.h"
#include "benchmarks/suites.h"
#include "content/game_flow.h"
#include "platform/frame.h"
#include "shell/play/play_view.h"

namespace gloomdeck {

namespace {

constexpr int middle = 60;  // moves

void copyFrame(benchmark::State& state) {
    const std::vector<Colour> from = screen().pixels;
    std::vector<Colour> to(from.size());
    while (state.KeepRunning()) {
        std::memcpy(to.data(), from.data(), from.size() * sizeof(Colour));
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}

void redraw(benchmark::State& state, const std::vector<GameState>& positions) {
    std::size_t next = 0;
    while (state.KeepRunning()) {
        game = positions[next];
        next = next + 1 < positions.size() ? next + 1 : 0;
        openPlayScreen();
        benchmark::ClobberMemory();
    }
}

void drawInTurn(benchmark::State& state, const std::vector<Drawing>& drawings) {
    std::size_t next = 0;
    while (state.KeepRunning()) {
        drawings[next]();
        next = next + 1 < drawings.size() ? next + 1 : 0;
        benchmark::ClobberMemory();
    }
}

std::vector<Put> putsOf(const GameState& position) {
    std::vector<Put> puts;
    game = position;
    recordPuts(&puts);
    openPlayScreen();
    recordPuts(nullptr);
    return puts;
}

Drawing ownPuts(const std::vector<Put>& puts) {
    return [=] {
        for (const Put& put : puts) putImage(put.x, put.y, *put.image, put.mode);
    };
}

template <typename Draw>
void measure(const char* name, const std::vector<GameState>& positions, Draw draw) {
    std::vector<Drawing> drawings;
    drawings.reserve(positions.size());
    for (const GameState& position : positions) drawings.push_back(draw(putsOf(position)));
    benchmark::RegisterBenchmark(name, [=](benchmark::State& s) { drawInTurn(s, drawings); });
}

}  // namespace

void registerScreens() {
    const std::vector<GameState> positions = positionsOfGames(2, middle, middle);
    benchmark::RegisterBenchmark("frame memcpy", copyFrame);
    benchmark::RegisterBenchmark("redraw", [=](benchmark::State& s) { redraw(s, positions); });
    measure("redraw puts", positions, ownPuts);
    measure("redraw SDL", positions, [](const auto& puts) { return sdlBlits(puts, false); });
    measure("redraw SDL RLE", positions, [](const auto& puts) { return sdlBlits(puts, true); });
    measure("redraw pixman", positions, pixmanComposites);
}

}  // namespace gloomdeck
