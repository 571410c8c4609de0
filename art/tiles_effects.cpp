// Flashes and marks laid over a cell, and the frame that pictures are shown in.
#include <array>
#include <cmath>

#include "art/painter.h"
#include "art/tiles.h"

namespace gloomdeck::art {
namespace {

Canvas glow() {
    const auto rays = [](double x, double y) {
        return wave(turns(x - 16, y - 16) * 12 + .25) * .5 * clamp(length(x - 16, y - 16) / 10, 0, 1);
    };
    Canvas t;
    t.part(everywhere(), ramp::gold, flat(4.6, .6, add({fade(16, 16, 12, -.14), rays})).within(4));
    return t.fill(cut(everywhere(), {box(1, 1, 31, 31)}), white);
}

// Must show on dark floors: the ash rim and the embers carry it, not the black.
Canvas scorch() {
    const Field burn = add({fade(16, 16.5, 0, 1), noise(14, 5, 6), noise(9, 2, 3.4)});
    const auto rim = [=](double x, double y) {
        if (burn(x, y) < 13) return -1.0;
        return floorMod(std::floor(x) + std::floor(y), 2) == 0 ? burn(x, y) - 15.5 : 9.0;
    };
    const auto heat = [=](double x, double y) { return clamp((burn(x, y) - 5) * .5, 0, 4); };
    Canvas t;
    t.part(rim, ramp::ash, flat(0, 1.2, heat).within(0));
    return t.stamp(9, 11,
                   {"..R.......R", ".....oo", ".rR....Ro", "r.....R", "..Ro...oR", "...r..R", "R....or...R"});
}

// A thrown splash: uneven arms that end in drops, no two alike.
Canvas filthSplash() {
    static constexpr std::array<double, 3> arms[] = {{.02, 11, 2.4},  {.14, 9, 1.9},   {.25, 12.6, 2.6},
                                                     {.36, 9.6, 2.0}, {.47, 10, 2.2},  {.60, 12.4, 2.7},
                                                     {.73, 9.4, 2.1}, {.86, 12.4, 2.4}};
    Field blob = ellipse(15.6, 16.4, 7.2, 6.4);
    for (const auto& [turn, reach, r] : arms) {
        const Point tip = polar(15.6, 16.4, reach, turn);
        blob = melt(blob, join({capsule({15.6, 16.4}, tip, 2.6, 1.0), circle(tip.x, tip.y, r)}), 2);
    }
    const Field drops = join({circle(3.6, 4.6, 1.5), circle(29, 12.4, 1.3), circle(27.6, 28.4, 1.7),
                              circle(3.4, 22.6, 1.2), circle(10.5, 29.4, 1.2)});
    Canvas t;
    t.part(join({blob, drops}), ramp::acid, dome(3.6, 3.0, 4)).outline();
    t.stamp(11, 11, {".ww", "ww", "w"}).stamp(18, 17, {".A.", "AGA", ".A."});
    return t.stamp(13, 20, {"AA", "AA"});
}

// A white-hot burst with the shield's cross-star in its middle; the target shows between the rays.
Canvas shieldImpact() {
    Canvas t;
    t.part(join({star(16, 16, 4, 15.4, 6), star(16, 16, 4, 13.8, 6, .125), circle(16, 16, 7)}), ramp::cyan,
           flat(4.6, .7, fade(16, 16, 8.4, -.34)));
    t.outline(1, false);
    t.part(circle(16, 16, 6), ramp::cyan, flat(6, 0).merged());
    t.part(star(16, 16, 4, 6, 2), ramp::cyan, flat(2, 0).merged());
    return t.part(star(16, 16, 4, 4, 1.3), ramp::cyan, flat(3, 0).merged());
}

Canvas pictureFrame() {
    Canvas t;
    t.part(everywhere(), ramp::wood, flat(1, 0));
    t.part(box(0, 0, 32, 32), ramp::wood, bevel(3.4, 2.6, 2, .1).merged());
    t.part(box(2.5, 2.5, 29.5, 29.5), ramp::moss, flat(1.25, .9, slope(0, -.03)));
    for (const int y : {0, 29}) {
        for (const int x : {0, 29}) t.stamp(x, y, {"UyU", "yhy", "UyU"});
    }
    return t;
}

}  // namespace

TileGroup effectTiles() {
    static constexpr Tile tiles[] = {
        {47, glow}, {33, scorch}, {76, filthSplash}, {77, shieldImpact}, {70, pictureFrame}};
    return tiles;
}

}  // namespace gloomdeck::art
