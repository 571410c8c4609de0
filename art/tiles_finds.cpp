// Things to find on the board, transparent over the terrain.
#include <cmath>

#include "art/bodies.h"
#include "art/painter.h"
#include "art/tiles.h"

namespace gloomdeck::art {

void goldPile(Canvas& t, double y0) {
    static constexpr Point stacks[] = {{7.5, 0}, {24.5, 0}, {16, 1.5}, {11.5, -5.5}, {20.5, -5.5}, {16, -12}};
    for (const auto& [x, dy] : stacks) {
        const double y = y0 + dy;
        t.part(join({ellipse(x, y + 2.8, 6, 3.2), box(x - 6, y, x + 6, y + 2.8)}), ramp::gold,
               flat(2.6, 0, columns(2, 0, -.9)));
        t.part(ellipse(x, y, 6, 3.2), ramp::gold, bevel(4.3, 1.8, 2, .2));
        t.part(ellipse(x, y + .3, 3, 1.2), ramp::gold, flat(3, 0, under(y, 0, 2)).merged());
    }
}

namespace {

Canvas gold() {
    Canvas t;
    goldPile(t, 23);
    t.outline().stamp(12, 8, {".w", "wCw", ".w"});
    return t.stamp(4, 21, {"hh"}).stamp(8, 15, {"hh"}).stamp(21, 20, {".h"});
}

// Tall and round-shouldered, bedroll on top, one unbroken flap, one strap: pairs of anything would look like
// eyes.
Canvas backpack() {
    Canvas t;
    for (const double x : {5, 27}) t.part(ellipse(x, 24.4, 3.4, 5), ramp::wood, dome(3.2, 2.4, 3, .3));
    t.part(melt(box(6, 9, 26, 30.4, 7), box(5.4, 20, 26.6, 30.4, 4), 3), ramp::wood,
           dome(3.9, 2.6, 8, .5, noise(3, 3, .7)));
    t.part(meet({box(5.4, 6.6, 26.6, 30, 6), join({circle(16, 9, 11), box(5.4, 6.6, 26.6, 14)})}), ramp::cyan,
           bevel(2.9, 2.2, 4, .4));
    t.part(box(7, 1.4, 25, 8, 3.3), ramp::bone, dome(2.9, 2.4, 3.3, .3, columns(6, 10, -1.2)));
    t.part(circle(25, 4.7, 3.3), ramp::bone, dome(3.1, 2.2, 3, .2));
    t.part(circle(25, 4.7, 1.3), ramp::bone, flat(1, 0).merged());
    t.part(box(14.4, 17, 17.6, 26.6), ramp::bone, flat(3, 0, split(16.5, .6, -.8)));
    t.part(box(13, 20.4, 19, 24.6, 1), ramp::gold, bevel(4.2, 2, 1.6, .1));
    return t.stamp(15, 22, {"BB"}).stamp(10, 10, {".CCC", "CC"}).outline();
}

Canvas scroll() {
    Canvas t;
    t.part(box(7, 6, 25, 26), ramp::bone, flat(4.6, .4, add({noise(2, 4, .8), slope(-.03, 0)})));
    for (const double y : {4.8, 26.6}) {
        t.part(capsule(5, y, 27, y, 2.7), ramp::bone, dome(4.2, 2.6, 2.7, .3));
        for (const double x : {4, 28}) t.part(circle(x, y, 2.3), ramp::bone, dome(2.6, 2.4, 2, .2));
    }
    t.stamp(10, 10, {"RRR.RRRRR.RR", "", "nn.nnnn.nnnn", "", "nnnnnn.nn.nn", "", "nnn.nnnn", "", "nnnnn"});
    return t.stamp(18, 17, {".PPP", "PPpPP", "PpwpP", "PPpPP", ".PPP", ".P.P"}).outline();
}

Canvas chest() {
    const Field grain = add({rows(4, 1, -.8), noise(5, 2, .6)});
    const Field lid = join({box(1.5, 2.6, 30.5, 12, 5), box(1.5, 8, 30.5, 12)});
    Canvas t;
    t.part(box(3.5, 11, 28.5, 18), ramp::gold, flat(4, 1.2, noise(8, 2, 3)));
    t.part(box(2.5, 17.5, 29.5, 29.5, 1), ramp::wood, bevel(3.2, 2, 3, .35, grain));
    t.part(lid, ramp::wood, bevel(3.9, 2.2, 5, .35, grain));
    for (const double x : {5, 24}) {
        t.part(box(x + .5, 17.5, x + 3.5, 29.5), ramp::gold, bevel(3.4, 2, 2, .2, slope(0, -.05, 0, 14)));
        t.part(meet({lid, box(x, 0, x + 3, 32)}), ramp::gold, bevel(3.8, 2, 2, .2));
    }
    t.part(box(12.6, 17, 19.4, 23, 1), ramp::gold, bevel(4, 2.6, 2, .2)).stamp(15, 18, {"##", "##", "##"});
    return t.stamp(6, 13, {"h....Y....h...Y..hh", "..hw..w...Yw.h...h", "Y.....h.......h..Y"}).outline();
}

void ironStrap(Canvas& t, const Field& lid, double x) {
    t.part(join({meet({lid, box(x, 0, x + 3.6, 32)}), box(x, 16, x + 3.6, 29.5)}), ramp::steel,
           bevel(4, 2, 1.8, .2));
    const int rivet = static_cast<int>(x + 1);
    for (const int y : {8, 20, 26}) t.stamp(rivet, y, {"S"});
}

Canvas lockedChest() {
    const Field lid = join({box(2, 4.6, 30, 16, 5.5), box(2, 11, 30, 16)});
    Canvas t;
    t.part(lid, ramp::steel, bevel(3.7, 2.4, 5, .4, noise(5, 2, .5)));
    t.part(box(2, 15.6, 30, 29.5, 1), ramp::steel, bevel(2.3, 2.2, 3, .4, noise(6, 2, .5)));
    t.part(box(2, 14.4, 30, 16.6), ramp::steel, flat(1.6, 0));
    for (const double x : {3.0, 25.4}) ironStrap(t, lid, x);
    for (const double s : {-1, 1}) {
        for (int i = 0; i < 5; ++i) {
            t.part(ellipse(16 + s * (5.2 + i * 2.05), 18.6 - i * 2.4, 1.8, 1.4), ramp::gold,
                   dome(3.8, 2.2, 1.3, .1));
        }
    }
    t.part(cut(circle(16, 14.5, 4.6), {circle(16, 14.5, 2.4)}), ramp::gold, dome(4.2, 2.6, 1.5, .2));
    t.part(box(10, 15.5, 22, 26.5, 1.5), ramp::gold, bevel(4, 2.6, 2.4, .3));
    return t.stamp(14, 18, {".##.", "####", "####", ".##.", ".##.", "####"}).outline();
}

// Two cherries well apart, lighter than any bomb.
Canvas fruit() {
    Canvas t;
    t.part(join({capsule(8.6, 19, 18, 5, .9), capsule(22.6, 20, 18, 5, .9), capsule(18, 5, 19.6, 2, 1.1)}),
           ramp::wood, flat(4));
    t.part(poly({18.6, 6.4, 22, 1.6, 30, 2.4, 28, 8.2, 22.6, 9.2}), ramp::acid, bevel(3, 2.4, 2.4, .2));
    t.part(poly({17.4, 6.2, 13, 2, 6, 3.6, 8, 8.6, 13, 8.8}), ramp::acid, bevel(3.4, 2.4, 2.4, .2));
    t.part(circle(23.6, 23.8, 6.6), ramp::crimson, dome(3.0, 3, 6.4, .4));
    t.part(circle(8.4, 22.2, 6.8), ramp::crimson, dome(3.2, 3, 6.6, .4));
    t.stamp(4, 18, {".ww", "www", "ww"}).stamp(20, 20, {".ww", "ww"}).stamp(23, 4, {"..G", ".G", "G"});
    return t.outline();
}

// A haunch: cut at its thick end, it bulges and then tapers to the one bone.
Canvas meat() {
    Canvas t;
    t.part(capsule(20, 20, 26.4, 26.4, 2), ramp::bone, dome(4.2, 2.4, 2, .2));
    for (const auto& [x, y] : {Point{24.8, 28.4}, {28.4, 24.8}}) {
        t.part(circle(x, y, 2.6), ramp::bone, dome(4.4, 2.6, 2.4, .2).merged());
    }
    t.part(melt(circle(13.4, 13.4, 9.6), capsule({16, 16}, {23, 23}, 5, 2.8), 4), ramp::wood,
           dome(3.6, 3, 8));
    t.part(capsule(5.2, 11.6, 11.6, 5.2, 3.7), ramp::bone, flat(4, 0));
    t.part(capsule(5.5, 11.5, 11.5, 5.5, 2.4), ramp::crimson, flat(5, 0).merged());
    t.stamp(5, 7, {"...F", "..F", "F...F", "...F"});
    return t.stamp(14, 8, {"F", ".FF"}).outline();
}

Canvas book() {
    const auto leaves = [](double x, double y) {
        return floorMod(std::floor(y) + std::floor(x / 5), 2) == 0 ? -1 : .3;
    };
    Canvas t;
    t.part(poly({5, 5, 23, 2.5, 28.5, 6, 28.5, 26, 10, 30, 5, 26.5}), ramp::fire, bevel(2.4, 2, 2.5, .3));
    t.part(poly({9.5, 27, 28.5, 23, 28.5, 26.5, 10, 30}), ramp::bone, flat(4.8, 0, leaves));
    t.part(poly({8.5, 7.5, 27.5, 4.5, 28.5, 23, 9.5, 27}), ramp::fire,
           bevel(2.7, 2.2, 2.5, .35, noise(3, 2, .4)));
    for (const auto& [x, y] : {Point{10.5, 9}, {25.5, 6.5}, {26, 21}, {11, 24}}) {
        t.part(circle(x, y, 1.9), ramp::gold, flat(4).merged());
    }
    t.stamp(14, 10,
            {"....y", "....y", ".y.yYy.y", "..yYhYy", "yyYhwhYyy", "..yYhYy", ".y.yYy.y", "....y", "....y"});
    return t.outline();
}

Canvas flower() {
    Canvas t;
    t.part(capsule(16, 17, 15, 30, 1.2), ramp::moss, dome(3.6, 2, 1.5));
    t.part(poly({15.5, 27, 22, 20.5, 27.5, 20.5, 24, 26}), ramp::moss, bevel(4.2, 2.4, 2.5, .2));
    t.part(poly({15, 29, 9, 24, 4, 24.6, 8, 29}), ramp::moss, bevel(3.8, 2.4, 2.5, .2));
    for (int k = 0; k < 6; ++k) {
        const Point petal = polar(16, 10.5, 6.6, k / 6.0 + .08);
        t.part(circle(petal.x, petal.y, 4), ramp::violet, dome(4.2, 2.6, 4, .3));
    }
    t.part(circle(16, 10.5, 3.9), ramp::gold, dome(4.2, 2.6, 3.6, .3));
    return t.stamp(14, 9, {"u..u", "", "", "u..u", ".uu"}).outline();
}

}  // namespace

TileGroup findTiles() {
    static constexpr Tile tiles[] = {{3, gold},   {49, backpack}, {1, scroll}, {17, chest}, {41, lockedChest},
                                     {22, fruit}, {21, meat},     {19, book},  {6, flower}};
    return tiles;
}

}  // namespace gloomdeck::art
