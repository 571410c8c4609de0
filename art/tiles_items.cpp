// Inventory items; those that skills add to have bodies of their own.
#include "art/bodies.h"
#include "art/painter.h"
#include "art/tiles.h"

namespace gloomdeck::art {

void shieldBody(Canvas& t) {
    const auto rim = [](double k) {
        return poly({16,           .8 + k,         19.5,         3 + k * .8,    29.4 - k,
                     4.6 + k * .6, 28.8 - k,       14,           25.8 - k * .9, 22 - k * .4,
                     16,           31.2 - k * 1.4, 6.2 + k * .9, 22 - k * .4,   3.2 + k,
                     14,           2.6 + k,        4.6 + k * .6, 12.5,          3 + k * .8});
    };
    t.part(rim(.6), ramp::steel, bevel(3.7, 2.8, 2.4, .25));
    t.part(rim(3.6), ramp::cyan, bevel(2.7, 2.2, 4, .4, split(16, .5, -.5)));
    t.part(star(16, 15, 4, 7, 2.4), ramp::bone, bevel(5, 2.2, 3, .2));
}

void boltBody(Canvas& t) {
    t.part(poly({18, 1, 26.4, 1, 19.8, 11.2, 26, 11.2, 8.6, 31, 13.2, 17.8, 6, 17.8}), ramp::gold,
           bevel(4.2, 2.6, 3, .2, slope(-.03, -.03)));
    t.stamp(17, 3, {"hh", "h", "h"});
}

void sunBody(Canvas& t) {
    for (int k = 0; k < 16; ++k) {
        const double far = k % 2 == 0 ? 15 : 12, tone = k % 2 == 0 ? 4.7 : 3.6;
        const std::vector<Point> ray{polar(16, 16, far, k / 16.0), polar(16, 16, 8.4, k / 16.0 + .05),
                                     polar(16, 16, 8.4, k / 16.0 - .05)};
        t.part(poly(ray), ramp::fire, flat(tone, .3, slope(-.03, -.03)).merged());
    }
    t.part(circle(16, 16, 8.6), ramp::gold, dome(4.3, 2.6, 8));
    t.stamp(11, 13, {".uu....uu", ".uu....uu", "", "", "u........u", ".u......u", "..uuuuuu"});
}

void heartBody(Canvas& t) {
    const Field body = join({circle(10, 11.2, 7.6), circle(22, 11.2, 7.6),
                             poly({3.2, 14, 9, 10, 16, 9, 23, 10, 28.8, 14, 16, 30})});
    const auto rim = [=](double x, double y) { return clamp(-body(x, y), 0, 3) * .8; };
    const Field swell = add({rim, bump(10, 10, 12, 20, 5), bump(22, 10, 12, 20, 5)});
    t.part(body, ramp::crimson, relief(3.4, 2.8, swell, .2, slope(-.02, -.02)).within(2));
    t.stamp(6, 7, {"..ww", ".www", "ww", "w"});
}

namespace {

Canvas outlined(void (*body)(Canvas&)) {
    Canvas t;
    body(t);
    return t.outline();
}

Canvas key() {
    Canvas t;
    t.part(join({capsule(17, 15, 5, 27, 1.8), capsule(8.4, 22.4, 12, 26, 1.4),
                 capsule(5, 26.6, 8.6, 29.4, 1.4)}),
           ramp::gold, dome(3.8, 2.6, 2.2, .3));
    t.part(cut(circle(21.5, 10, 7.6), {circle(21.5, 10, 3.4)}), ramp::gold, dome(4, 3, 2.2, .3));
    t.part(capsule(14.6, 14.4, 17.8, 17.6, 1.1), ramp::gold, dome(4.4, 2, 1.2, .1));
    return t.stamp(17, 5, {".w", "w"}).outline();
}

Canvas torch() {
    Canvas t;
    t.part(poly({12.4, 17, 19.6, 17, 18.4, 31, 13.6, 31}), ramp::wood,
           dome(3.8, 2.2, 3, .3, rows(4, 21, -1)));
    t.part(poly({9, 14.4, 23, 14.4, 20.4, 20, 11.6, 20}), ramp::steel, bevel(3.6, 2.4, 2, .2));
    const Field flame =
        join({ellipse(16, 10.6, 7, 5.2), poly({9, 10, 10.6, 3.6, 13.2, 6.2, 16.6, .6, 21, 5, 23, 10})});
    const auto heat = [=](double x, double y) {
        return clamp(-flame(x, y) * .8, 0, 4) * .6 - 1 + (y - 10) * .14;
    };
    t.part(flame, ramp::fire, flat(4.3, .6, heat));
    return t.part(ellipse(16, 11.4, 2.8, 2.8), ramp::gold, flat(6).merged()).outline();
}

Canvas lightningBolt() {
    Canvas t;
    boltBody(t);
    return t.stamp(3, 6, {".c", "cCc", ".c"}).stamp(25, 21, {".c", "cCc", ".c"}).outline();
}

Canvas bomb() {
    const Field ball = circle(14.5, 19, 11);
    const auto reflection = [=](double x, double y) { return ball(x, y) > -1.7 && x + y > 38 ? 1.6 : 0.0; };
    Canvas t;
    t.part(path({{20, 9}, {23, 5.4}, {26, 5}}, 1.3), ramp::bone, dome(3.6, 2, 1.5));
    t.part(poly({16, 8, 20, 5.5, 24, 9.5, 21.5, 13}), ramp::steel, bevel(4.2, 2.2, 2, .2));
    t.part(ball, ramp::stone, dome(2.2, 3.4, 10, .5, reflection));
    t.stamp(8, 12, {"..wS", ".wS", "wS", "S"}).outline();
    return t.stamp(24, 1, {"..o..y", "y..O", ".oYhO.o", "..hhh", ".oOhYo", "y..O", "..o..y"});
}

// Open palm: four fingers apart, thumb well away from them.
Canvas hand() {
    struct Finger {
        double x, y, foot;
    };
    Canvas t;
    for (const auto& [x, y, foot] :
         {Finger{9.4, 6.6, 12.4}, {14, 3, 14.8}, {18.6, 3.4, 17.6}, {23, 6.4, 20.4}}) {
        t.part(capsule(x, y, foot, 17, 1.9, 2.1), ramp::flesh, dome(4.2, 2.4, 2.1, .2));
    }
    t.part(path({{27.6, 14}, {24.4, 19}, {20, 22}}, 1.9, 2.6), ramp::flesh, dome(3.9, 2.4, 2.2, .2));
    t.part(melt(ellipse(16, 19.4, 7, 6.4), box(11, 18, 21, 26.4, 2), 2), ramp::flesh,
           dome(4.2, 2.4, 5, .4).merged());
    t.part(box(9, 25, 23, 31, 1.2), ramp::violet, bevel(3.6, 2.4, 2.5, .3));
    t.stamp(10, 26, {"yyyyyyyyyyyy"}).stamp(12, 18, {"fff", "...fff", "......f"});
    return t.stamp(19, 20, {"f", "f", ".f"}).outline();
}

Canvas shield() { return outlined(shieldBody); }
Canvas sun() { return outlined(sunBody); }
Canvas heart() { return outlined(heartBody); }

void trainingBadge(Canvas& t) {
    t.part(box(17.4, 17.4, 31, 31, 2), ramp::violet, bevel(2.9, 1.6, 1.6, 0));
    t.stamp(19, 19,
            {"....ww", "...wwww", "..wwwwww", ".wwwwwwww", "wwwwwwwwww", "...wwww", "...wwww", "...wwww",
             "...wwww", "...wwww"});
}

void tradingBadge(Canvas& t) {
    t.part(box(1, 17.4, 14.6, 31, 2), ramp::acid, bevel(1.9, 1.6, 1.6, 0));
    t.stamp(3, 19,
            {"....ww", "..wwwwww", ".www..www", ".www", "..wwwwww", ".....www", ".www..www", "..wwwwww",
             "....ww", "....ww"});
}

// The pile raised, with a 13 px plate in a lower corner; plates and pile share one outline.
Canvas markedGold(bool training, bool trading) {
    Canvas t;
    goldPile(t, 17);
    if (training) trainingBadge(t);
    if (trading) tradingBadge(t);
    return t.outline().stamp(12, 2, {".w", "wCw", ".w"});
}

Canvas goldForBoth() { return markedGold(true, true); }
Canvas goldForTraining() { return markedGold(true, false); }
Canvas goldForTrading() { return markedGold(false, true); }

}  // namespace

TileGroup itemTiles() {
    static constexpr Tile tiles[] = {
        {48, key},  {45, torch}, {24, shield},      {13, lightningBolt},   {23, sun},           {7, bomb},
        {39, hand}, {16, heart}, {75, goldForBoth}, {74, goldForTraining}, {68, goldForTrading}};
    return tiles;
}

}  // namespace gloomdeck::art
