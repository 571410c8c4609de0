// Doors, the trap, the cave and the end of a column.
#include <cmath>

#include "art/painter.h"
#include "art/tiles.h"

namespace gloomdeck::art {
namespace {

Canvas door() {
    const auto wedge = [](double x, double y) {
        const double nth = std::floor(turns(x - 16, y - 13.5) * 40 + .5);
        return y < 13.5 && floorMod(nth, 4) == 0 ? -1.4 : 0.0;
    };
    Canvas t;
    t.part(arch(16, 1.5, 12, 31), ramp::stone,
           bevel(3.7, 2.4, 2.5, .35, add({wedge, rows(6, 14, -1.4, 13)})));
    t.part(arch(16, 5, 8.5, 31), ramp::wood,
           bevel(3.4, 2.0, 2, .25, add({columns(4, 8, -1.5), noise(3, 2, .8)})));
    for (const int y : {12, 24}) {
        t.part(box(8, y, 20, y + 2), ramp::stone, flat(4.6, 0, under(y + 1, .4, -1.6)));
        t.dots(ramp::steel[6], {{9, y}, {13, y}, {17, y}});
    }
    t.part(circle(21.5, 18.5, 2.3), ramp::gold, dome(3.8, 3, 2));
    return t.outline();
}

void ironLeaf(Canvas& t, double x0, double x1, double tone) {
    const int left = static_cast<int>(x0), right = static_cast<int>(x1);
    t.part(box(x0, 8.5, x1, 31), ramp::stone, bevel(2.4 + tone, 2, 2, .3, noise(left, 2, .5)));
    for (const double y : {11, 26}) {
        t.part(box(x0, y, x1, y + 2), ramp::gold, flat(3.8, 0, under(y + 1, 0, -1.3)));
    }
    t.dots(ramp::stone[6], {{left + 2, 15}, {left + 2, 23}, {right - 2, 15}, {right - 2, 23}});
}

Canvas doubleDoor() {
    Canvas t;
    t.part(join({box(1.2, 5, 30.8, 31), poly({.8, 8, 16, .6, 31.2, 8})}), ramp::bone,
           bevel(3.0, 2.4, 2.5, .35, rows(7, 9, -1.4, 9)));
    ironLeaf(t, 3.6, 15.6, .4);
    ironLeaf(t, 16.4, 28.4, 0);
    t.fill(box(15, 9, 17, 31), inkColour);
    for (const double x : {12.4, 19.6}) {
        t.part(capsule(x, 16.4, x, 22.4, 1.5), ramp::gold, dome(4.2, 2.4, 1.5, .1));
        t.dots(ramp::gold[6], {{static_cast<int>(x), 16}});
    }
    return t.outline();
}

// A pointed iron pyramid: a lit and a dark face that meet in one edge.
void spike(Canvas& t, double x, double tip, double foot) {
    t.part(poly({x, tip - 1.5, x + 5.4, foot, x, foot + 1.4, x - 5.4, foot}), ramp::steel,
           flat(4.2, 0, add({split(x + .1, 1.2, -2), slope(0, -.05, 0, 20)})));
}

// Three spikes behind two out of a plank pit, evenly spaced, or they look like crystals; blood runs down in
// drops, for a red point looks like a pencil's.
Canvas trap() {
    Canvas t;
    t.part(box(1, 18, 31, 31, 1.5), ramp::wood, bevel(3.9, 2, 2, .2, columns(5, 1, -1.6)));
    t.part(box(3, 20, 29, 28, 1), ramp::ink, flat(0).within(0));
    for (const double x : {6, 16, 26}) spike(t, x, 7, 23);
    t.stamp(3, 9, {"..I", "..I", "..I", ".II", ".Ii", "JIi", "IIi", ".i"});
    t.stamp(24, 9, {"..I", "..I", ".II", "JIi", ".i"});
    for (const double x : {11, 21}) spike(t, x, 14, 28.6);
    return t.stamp(8, 16, {"..I", "..I", ".II", "JIi", "IIi", ".i"}).outline();
}

Canvas cave() {
    const Field boulders = join({circle(16, 17, 13.4), circle(8, 22, 7.6), circle(24, 22, 7.6),
                                 circle(11, 11, 6.4), circle(22, 10, 6.4), box(1, 24, 31, 31)});
    Canvas t;
    t.part(meet({boulders, box(.8, 1, 31.2, 31)}), ramp::bone,
           dome(2.5, 2.4, 7, .6, add({noise(6, 3, 1.6), noise(7, 7, 1.2)})));
    t.part(join({arch(16, 12, 8, 31.4), box(7.4, 24, 24.6, 31.4)}), ramp::ink, flat(0).within(0));
    t.part(poly({9, 15, 13, 11, 12.6, 17.6}), ramp::bone, flat(2, 0).merged());
    t.part(poly({18, 11, 22.6, 14.6, 19.8, 19}), ramp::bone, flat(2.4, 0).merged());
    t.part(poly({9, 31.4, 11, 26.4, 13, 31.4}), ramp::bone, flat(1.6, 0).merged());
    t.part(poly({20, 31.4, 22, 28, 24, 31.4}), ramp::bone, flat(1.4, 0).merged());
    return t.stamp(12, 21, {"oo....oo", ".Oo..oO"}).outline();
}

// What nothing looks like: three stones, no two alike, dull but lighter than every floor and the panels.
Canvas pebbles() {
    const Look worn = dome(3.6, 2.4, 2.4, .2).within(1, 4);
    Canvas t;
    t.part(capsule({9.4, 24.6}, {11.6, 25.2}, 2.7, 2.3), ramp::stone, worn);
    t.part(circle(16.2, 27, 1.7), ramp::stone, worn);
    t.part(capsule({22.2, 25.8}, {24, 26.2}, 2.2, 1.8), ramp::stone, worn);
    return t.outline();
}

Canvas theEnd() {
    Canvas t;
    t.part(arch(16, 1, 14.4, 31.5), ramp::stone,
           bevel(3.6, 2.2, 3, .35, add({noise(2, 4, .8), rows(6, 15, -1.2, 14)})));
    t.part(arch(16, 5, 10, 31.5), ramp::cyan, flat(3.6, .9, fade(16, 20, 6, -.3)));
    for (int i = 0; i < 5; ++i) {
        const double y = 28 - i * 3;
        t.part(box(6.4 + i * 1.5, y, 25.6 - i * 1.5, y + 3.5), ramp::bone,
               flat(5 - i * .5, 0, under(y + 2, 0, -1.6)));
    }
    return t.outline();
}

}  // namespace

TileGroup placeTiles() {
    static constexpr Tile tiles[] = {{69, door}, {18, doubleDoor}, {65, trap},
                                     {14, cave}, {100, pebbles},   {46, theEnd}};
    return tiles;
}

}  // namespace gloomdeck::art
