// One present of the frames of a game from move to move, and of frames that differ in every pixel, beside
// enlarging them into a window's surface and nothing else. Both windows stand side by side all the time.
#include <SDL.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "benchmarks/session.h"
#include "platform/frame.h"
#include "platform/host_script.h"
#include "platform/host_sdl_window.h"
#include "platform/shown_frame.h"

namespace gloomdeck {

namespace {

constexpr std::size_t pixelCount = std::size_t{frameWidth} * frameHeight;
constexpr int largestScale = 3;
constexpr int middle = 60;        // moves before the first that is shown
constexpr double longMove = 1e6;  // seconds; no picture within one
constexpr int shownMoves = 4;     // in turn; more would measure how far away their pixels lie

SDL_Window* ourWindow = nullptr;
SDL_Window* bareWindow = nullptr;

// A picture, and the rows that the game names as changed after the one before it.
struct Frame {
    Image picture = createImage(frameWidth, frameHeight);
    Rows named{0, frameHeight - 1};
};
using Frames = std::vector<Frame>;

Frames framesThatDifferEverywhere() {
    Frames frames(2);
    for (Colour i = 0; i < pixelCount; ++i) {
        frames[0].picture.pixels[i] = 0xFF000000 | i * 97;
        frames[1].picture.pixels[i] = frames[0].picture.pixels[i] ^ 0x00FFFFFF;
    }
    return frames;
}

Frames framesOfGame() {
    Frames frames;
    startGame(1, 1);  // a long one
    script::setFramePeriod(longMove);
    for (int move = 0; move < middle; ++move) playMove();
    showFrameNow();
    Rows all;
    for (int move = 0; move < shownMoves; ++move) {
        playMove();
        frames.push_back({screen(), namedRows()});
        all = joined(all, namedRows());
        showFrameNow();
    }
    frames.front().named = all;  // it comes after the last one
    return frames;
}

bool resize(SDL_Window* window, int scale) {
    SDL_SetWindowSize(window, frameWidth * scale, frameHeight * scale);
    SDL_Delay(100);  // the display answers
    SDL_PumpEvents();
    SDL_FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);
    const SDL_Surface* surface = SDL_GetWindowSurface(window);
    return surface != nullptr && surface->w == frameWidth * scale && surface->h == frameHeight * scale;
}

template <int scale>
void enlargeBarely(const Colour* __restrict from, Colour* __restrict to, int pitch) {
    for (int y = 0; y < frameHeight; ++y, from += frameWidth) {
        Colour* const first = to;
        if constexpr (scale == 1)
            std::memcpy(first, from, frameWidth * sizeof(Colour));
        else
            for (int x = 0; x < frameWidth; ++x) std::fill_n(first + x * scale, scale, from[x]);
        to += pitch;
        for (int copy = 1; copy < scale; ++copy, to += pitch)
            std::memcpy(to, first, frameWidth * scale * sizeof(Colour));
    }
}

template <int scale>
void presentBarely(benchmark::State& state, const Frames& frames) {
    if (!resize(bareWindow, scale)) return state.SkipWithError("the window has another size");
    std::size_t next = 0;
    while (state.KeepRunning()) {
        const SDL_Surface* surface = SDL_GetWindowSurface(bareWindow);
        enlargeBarely<scale>(frames[next].picture.pixels.data(), static_cast<Colour*>(surface->pixels),
                             surface->pitch / static_cast<int>(sizeof(Colour)));
        SDL_UpdateWindowSurface(bareWindow);
        next = next + 1 < frames.size() ? next + 1 : 0;
    }
}

// As the frame is shown: what differs is found above the host.
void present(ShownFrame& shown, const Frame& frame) {
    const std::span<const Rows> differing = takeOver(shown, frame.picture, frame.named);
    if (!differing.empty()) host::showFrame(shown.picture.pixels.data(), differing);
}

void presentOurs(benchmark::State& state, const Frames& frames, int scale) {
    if (!resize(ourWindow, scale)) return state.SkipWithError("the window has another size");
    static ShownFrame shown{.picture = createImage(frameWidth, frameHeight), .differing = {}};
    present(shown, {frames.back().picture});
    std::size_t next = 0;
    while (state.KeepRunning()) {
        present(shown, frames[next]);
        next = next + 1 < frames.size() ? next + 1 : 0;
    }
}

// Side by side, so that neither hides a part of the other.
bool openBoth() {
    if (!host::openDesktopWindow({frameWidth, frameHeight}, "ours")) return false;
    ourWindow = SDL_GetWindowFromID(1);
    SDL_SetWindowPosition(ourWindow, 0, 0);
    bareWindow =
        SDL_CreateWindow("bare", frameWidth * largestScale, 0, frameWidth, frameHeight, SDL_WINDOW_RESIZABLE);
    return ourWindow != nullptr && bareWindow != nullptr;
}

template <int scale>
void registerScale(const std::string& what, const Frames& frames) {
    const std::string name = what + " " + std::to_string(scale);
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& s) { presentOurs(s, frames, scale); });
    benchmark::RegisterBenchmark((name + " bare").c_str(),
                                 [=](benchmark::State& s) { presentBarely<scale>(s, frames); });
}

void registerPresents(const std::string& what, const Frames& frames) {
    registerScale<1>(what, frames);
    registerScale<2>(what, frames);
    registerScale<3>(what, frames);
}

}  // namespace

bool openAndRegister(const char* folder) {
    startSession(folder);
    if (!openBoth()) return false;
    registerPresents("move present", framesOfGame());
    registerPresents("whole present", framesThatDifferEverywhere());
    return true;
}

}  // namespace gloomdeck

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: gloomdeck_present_bench FOLDER [--benchmark_...]; FOLDER holds gfx\n");
        return 2;
    }
    if (!gloomdeck::openAndRegister(argv[1])) {
        std::fprintf(stderr, "no display to open two windows on\n");
        return 2;
    }
    return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 2;
}
