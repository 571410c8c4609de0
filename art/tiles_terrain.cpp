// Grounds of the locations and layers of the screen's background. All wrap at their edges; all opaque but the
// cover.
#include <cmath>
#include <span>

#include "art/painter.h"
#include "art/tiles.h"

namespace gloomdeck::art {
namespace {

// The shape repeated so that it wraps at the tile's edges.
Field tiled(const Field& shape) {
    std::vector<Field> copies;
    for (const double dy : {-32, 0, 32}) {
        for (const double dx : {-32, 0, 32}) copies.push_back(shift(shape, dx, dy));
    }
    return join(std::move(copies));
}

struct Block {
    double x, y, w, h;
};

struct Masonry {
    int seed;
    double base, gain, grain, dither, radius, gap;
    double width = 1.6;
};

// Blocks with dark joints; each has its own tone and grain.
Canvas masonry(const Ramp& ramp, std::span<const Block> blocks, const Masonry& m) {
    Canvas t;
    t.part(everywhere(), ramp, flat(1, 0).within(0));
    int nth = 0;
    for (const auto& [x, y, w, h] : blocks) {
        const double tone = hash01(m.seed, nth, 0) * .5 - .25;
        const Field block = tiled(box(x + m.gap, y + m.gap, x + w - m.gap, y + h - m.gap, m.radius));
        t.part(block, ramp,
               bevel(m.base + tone, m.gain, m.width, m.dither, noise(m.seed + nth, 4, m.grain, 32)).merged());
        ++nth;
    }
    return t;
}

Canvas cellarAndDungeonFloor() {
    static constexpr Block blocks[] = {{-3, 0, 15, 11},  {12, 0, 17, 11},  {4, 11, 15, 11},
                                       {19, 11, 17, 11}, {-5, 22, 14, 10}, {9, 22, 18, 10}};
    return masonry(ramp::floor, blocks, {2, 2.6, 1.1, .8, .4, 1.5, .5});
}

Canvas ruinsAndCragsRubble() {
    static constexpr Block boulders[] = {
        {-4, -2, 18, 16}, {14, -3, 14, 14}, {-2, 14, 13, 16}, {11, 12, 17, 18}};
    Canvas t = masonry(ramp::mossy, boulders, {5, 2.6, 1.0, 1.3, .6, 4, .8});
    t.dots(ramp::mossy[5], {{2, 27}, {3, 26}, {4, 27}, {3, 28}, {12, 14}, {13, 13}});
    return t.dots(ramp::mossy[5], {{20, 10}, {21, 9}, {22, 10}, {27, 20}, {28, 19}});
}

Canvas portalSwirl() {
    const auto arms = [](double x, double y) {
        const double r = length(x - 16, y - 16), a = turns(x - 16, y - 16);
        return wave(a * 3 + r * .08 + .25) * 1.2 * clamp(r / 5, 0, 1) * clamp((18 - r) / 5, 0, 1);
    };
    return Canvas().part(everywhere(), ramp::portal, flat(2.3, .7, add({arms, noise(3, 4, .7, 32)})));
}

void brassDiamond(Canvas& t, double cx, double cy) {
    const auto lit = [=](double x, double y) { return x < cx && y < cy ? 1.0 : 0.0; };
    const Field line = [=](double x, double y) {
        return std::fabs(std::fabs(x - cx) + std::fabs(y - cy) - 4.3) - .9;
    };
    t.part(line, ramp::inlay, flat(2, 0, lit).merged());
}

Canvas treasuryMarble() {
    Canvas t;
    t.part(everywhere(), ramp::marble, flat(1, 0));
    int nth = 0;
    for (const auto& [x, y] : {Point{0, 0}, {16, 0}, {0, 16}, {16, 16}}) {
        t.part(box(x + .2, y + .2, x + 15.8, y + 15.8), ramp::marble,
               bevel(x == y ? 2.0 : 2.5, .9, 1.4, .5, noise(nth + 5, 4, 1.1, 32)).merged());
        ++nth;
    }
    for (const auto& [x, y] : {Point{0, 0}, {32, 0}, {0, 32}, {32, 32}, {16, 16}}) brassDiamond(t, x, y);
    return t;
}

Canvas screenWall() {
    static constexpr Block blocks[] = {{0, 0, 16, 8},  {16, 0, 16, 8},  {-8, 8, 16, 8},  {8, 8, 16, 8},
                                       {0, 16, 16, 8}, {16, 16, 16, 8}, {-8, 24, 16, 8}, {8, 24, 16, 8}};
    return masonry(ramp::moss, blocks, {4, 2.0, .6, .5, .4, 1, .5, 1.2});
}

// Seven pixels of 32 are open, on a lattice that lies askew: shapes show through it, upright letters do not.
Canvas cover() {
    Canvas t;
    t.part(everywhere(), ramp::ink, flat(1.4, 1.6, noise(9, 4, 2.4, 32)));
    for (int y = 0; y < t.height(); ++y) {
        for (int x = 0; x < t.width(); ++x) {
            if ((7 * x + 13 * y) % 32 < 7) t.erase(x, y);
        }
    }
    return t;
}

}  // namespace

TileGroup terrainTiles() {
    static constexpr Tile tiles[] = {
        {55, cellarAndDungeonFloor}, {60, ruinsAndCragsRubble}, {37, portalSwirl},
        {71, treasuryMarble},        {53, screenWall},          {58, cover}};
    return tiles;
}

}  // namespace gloomdeck::art
