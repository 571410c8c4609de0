// Skills (stats column, on slate) and powers (below the board; their lowest six rows lie under the turn bar).
#include "art/bodies.h"
#include "art/painter.h"
#include "art/tiles.h"

namespace gloomdeck::art {
namespace {

// An item with the acid-green arrow; parts first, one outline.
Canvas boosted(void (*body)(Canvas&)) {
    Canvas t;
    body(t);
    t.part(poly({25, 16, 31, 23.4, 28, 23.4, 28, 31, 22, 31, 22, 23.4, 19, 23.4}), ramp::acid,
           bevel(4.4, 2.2, 2, .1));
    return t.outline();
}

Canvas shieldBoost() { return boosted(shieldBody); }
Canvas lightningBoost() { return boosted(boltBody); }
Canvas sunBoost() { return boosted(sunBody); }
Canvas toughness() { return boosted(heartBody); }

// Padlock, shackle swung open, a steel pick with a wooden handle in the keyhole.
Canvas lockpicking() {
    Canvas t;
    t.part(cut(arch(11.6, 2, 6.2, 14), {arch(11.6, 5.2, 3, 14), box(14, 9, 24, 15)}), ramp::steel,
           dome(4.2, 2.4, 2, .2));
    t.part(box(2, 12.5, 21, 29.5, 2.4), ramp::gold, bevel(3.9, 2.6, 3, .3));
    t.stamp(8, 17, {".####.", "######", "######", ".####.", "..##..", "..##..", ".####."});
    t.part(capsule(12, 19.4, 22.5, 13.4, 1.5), ramp::steel, dome(5, 2, 1.4, .1));
    t.part(capsule(23.6, 12.6, 28.4, 6, 2.2, 2.5), ramp::wood, dome(4.4, 2.4, 2.4, .2));
    return t.outline();
}

// The thief's cream sack behind a steel shield with its own emblem.
Canvas thiefProtection() {
    Canvas t;
    t.part(ellipse(12.5, 20.6, 11.4, 10), ramp::bone, dome(3.9, 2.6, 9, .4));
    t.part(poly({6, 3.4, 19, 3.4, 16.6, 11, 8.6, 11}), ramp::bone, dome(4.2, 2.4, 3, .2));
    t.part(box(7.4, 9.6, 17.8, 12.4, 1), ramp::fire, flat(2.6));
    t.stamp(5, 16, {"...u", ".uuuu", "uu.u", ".uuu", "...uu", "uuuu", "..u"});
    t.part(poly({22, 11, 25, 12.6, 31, 13.6, 30.4, 22, 22, 31, 13.6, 22, 13, 13.6, 19, 12.6}), ramp::steel,
           bevel(4.2, 2.8, 2.2, .2));
    t.part(poly({22, 14.6, 28.2, 16.2, 27.8, 21.4, 22, 27.6, 16.2, 21.4, 15.8, 16.2}), ramp::cyan,
           bevel(2.8, 2.2, 2.4, .2));
    return t.stamp(20, 17, {".ww", ".ww", "wwww", "wwww", ".ww", ".ww"}).outline();
}

Field sightRay(double near, double far, double turn) {
    return capsule(polar(16, 14, near, turn), polar(16, 14, far, turn), .9, .9);
}

Canvas magicSight() {
    Canvas t;
    for (const auto& [turn, far] : {Point{0, 12.4}, {.11, 13.4}, {-.11, 13.4}, {.2, 15}, {-.2, 15}}) {
        t.part(sightRay(9.6, far, turn), ramp::gold, flat(4.4, 0));
    }
    t.part(meet({circle(16, 25, 18), circle(16, 3, 18)}), ramp::bone, dome(5, 2.4, 6, .3));
    t.part(circle(16, 14, 5.8), ramp::cyan, dome(3.6, 2.4, 5, .3));
    t.part(circle(16, 14, 2.5), ramp::ink, flat(0).within(0).merged());
    for (const double turn : {.4, .5, .6}) t.part(sightRay(9.4, 10.8, turn), ramp::gold, flat(3.4, 0));
    return t.stamp(13, 10, {"ww", "w"}).outline();
}

Canvas stasis() {
    Canvas t;
    t.part(join({poly({7, 3, 25, 3, 17, 13.4, 15, 13.4}), poly({15, 13.4, 17, 13.4, 25, 24, 7, 24})}),
           ramp::cyan, bevel(4.6, 2.2, 3, .3));
    t.part(poly({10.4, 6.4, 21.6, 6.4, 16.6, 12.6, 15.4, 12.6}), ramp::gold, flat(4).merged());
    t.part(poly({16, 17.4, 22, 23, 10, 23}), ramp::gold, flat(4).merged());
    for (const double y : {2.6, 24.6}) {
        t.part(box(5, y - 1.7, 27, y + 1.5, 1), ramp::wood, bevel(4, 2.4, 1.6, .2));
    }
    return t.stamp(15, 12, {"yy", "yy", "zz", "zz", "yy"}).stamp(10, 5, {"C", ".C", "..C"}).outline();
}

// An arrow comes dull from the upper left, strikes the shield and leaves bright and larger to the lower left.
Canvas deflection() {
    const auto rim = [](double k) {
        return poly({21, 1 + k, 31 - k, 4.2 + k * .6, 30.4 - k, 13, 27.4 - k * .9, 20 - k * .4,  //
                     20.8, 26.4 - k * 1.4, 13.6 + k * .9, 20 - k * .4, 10.8 + k, 13, 10.4 + k, 4.2 + k * .6});
    };
    const Field leaving =
        join({capsule(14, 11, 8.4, 17.8, 2.2, 2.0), poly({3.2, 13.2, 13.2, 21.4, 1.2, 25.2})});
    Canvas t;
    t.part(rim(0), ramp::steel, bevel(3.9, 2.8, 2.2, .25));
    t.part(rim(2.8), ramp::cyan, bevel(2.8, 2.2, 4, .3, split(20.8, .5, -.5)));
    t.part(capsule(2.4, 2.4, 14, 11, 1.0, 2.2), ramp::fire, flat(3, .2, slope(.07, 0, 8, 0)));
    t.part(leaving, ramp::fire, bevel(4.6, 2.0, 2, .1).merged());
    return t.outline().stamp(12, 7, {"..w", "w.w.w", ".www", "wwwww", ".www", "w.w.w", "..w"});
}

}  // namespace

TileGroup skillAndPowerTiles() {
    static constexpr Tile tiles[] = {{103, shieldBoost}, {101, lightningBoost}, {102, sunBoost},
                                     {104, toughness},   {105, lockpicking},    {106, thiefProtection},
                                     {29, magicSight},   {30, stasis},          {27, deflection}};
    return tiles;
}

}  // namespace gloomdeck::art
