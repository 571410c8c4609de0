// A board's worth of tiles put on the frame in each way, beside the same through other libraries, and puts
// that the clip cuts at each of its edges.
#include <benchmark/benchmark.h>

#include <string>

#include "benchmarks/peers.h"
#include "benchmarks/suites.h"
#include "platform/frame.h"
#include "rules/catalogue.h"
#include "shell/widgets/places.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int alpha = 192;
constexpr int encounterCodes = 24;
constexpr Rect frameArea{0, 0, frameWidth - 1, frameHeight - 1};
constexpr Rect clipArea{100, 100, 299, 299};

void drawOver(benchmark::State& state, const Drawing& drawing, double pixels) {
    while (state.KeepRunning()) {
        drawing();
        benchmark::ClobberMemory();
    }
    state.counters["pixels"] = pixels;
}

void measure(const std::string& name, const Drawing& drawing, double pixels = 1) {
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& s) { drawOver(s, drawing, pixels); });
}

const Image& nextTile() {
    static int code = 0;
    code = (code + 1) % encounterCodes;
    return tileImage(encounterType(code).tile);
}

std::vector<Put> boardOfTiles(PutMode mode) {
    std::vector<Put> puts;
    for (int col = 0; col < boardGrid.columns; ++col)
        for (int row = 0; row < boardGrid.rows; ++row) {
            const Point at = boardGrid.corner(col, row);
            puts.push_back({at.x, at.y, &nextTile(), mode});
        }
    return puts;
}

// Every cut from one pixel to all but one, at every edge of the clip.
std::vector<Put> tilesOverEdges(PutMode mode) {
    std::vector<Put> puts;
    constexpr Rect c = clipArea;
    for (int cut = 1; cut < tile::size; ++cut)
        for (const Point at : {Point{c.x1 - cut, c.y1 + cut}, Point{c.x2 - tile::size + 1 + cut, c.y1 + cut},
                               Point{c.x1 + cut, c.y1 - cut}, Point{c.x1 + cut, c.y2 - tile::size + 1 + cut}})
            puts.push_back({at.x, at.y, &nextTile(), mode});
    return puts;
}

double pixelsInside(const std::vector<Put>& puts, const Rect& clip) {
    double pixels = 0;
    for (const Put& put : puts) {
        const Rect whole{put.x, put.y, put.x + put.image->width - 1, put.y + put.image->height - 1};
        const Rect part = intersection(whole, clip);
        pixels += (part.x2 - part.x1 + 1.0) * (part.y2 - part.y1 + 1.0);
    }
    return pixels;
}

Drawing ours(const std::vector<Put>& puts, const Rect& clip) {
    return [=] {
        const ClipTo clipped{clip};
        for (const Put& put : puts) putImage(put.x, put.y, *put.image, put.mode);
    };
}

}  // namespace

void registerPuts() {
    for (const auto& [name, mode] :
         {std::pair<std::string, PutMode>{"transparent", putTransparent}, {"blend", putBlended(alpha)}}) {
        const std::vector<Put> board = boardOfTiles(mode);
        const std::vector<Put> edges = tilesOverEdges(mode);
        measure(name, ours(board, frameArea));
        measure(name + " memcpy", copiedRows(board));
        measure(name + " SDL", sdlBlits(board, false));
        measure(name + " SDL RLE", sdlBlits(board, true));
        measure(name + " pixman", pixmanComposites(board));
        measure(name + " clipped", ours(edges, clipArea), pixelsInside(edges, clipArea));
        measure(name + " unclipped", ours(edges, frameArea), pixelsInside(edges, frameArea));
    }
}

}  // namespace gloomdeck
