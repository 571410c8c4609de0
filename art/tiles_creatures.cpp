// Creatures that lie on the board, transparent over the terrain but for the darkness.
#include <cmath>

#include "art/painter.h"
#include "art/tiles.h"

namespace gloomdeck::art {
namespace {

constexpr double sides[] = {-1, 1};

// Legs, arms, spine, ribs and hips below a skull; `top` is ten rows above the collar bones.
void bones(Canvas& t, double cx, double top) {
    for (const double s : sides) {
        t.part(capsule(cx + s * 2.3, top + 15.5, cx + s * 4, 29.5, 1.2), ramp::bone, dome(4, 2, 2));
        t.part(path({{cx + s * 5, top + 9}, {cx + s * 8.6, top + 12.5}, {cx + s * 8, top + 17}}, 1.2),
               ramp::bone, dome(4.2, 2, 2));
    }
    t.part(capsule(cx, top + 8, cx, top + 15, 1), ramp::bone, dome(3.4, 2, 1.5));
    for (const auto& [y, w] : {Point{9, 5}, {11.4, 4.4}, {13.6, 3.4}}) {
        t.part(box(cx - w, top + y - .8, cx + w, top + y + .8, .8), ramp::bone, dome(4.6, 1.8, 1.5));
    }
    t.part(box(cx - 3.4, top + 15, cx + 3.4, top + 17, 1), ramp::bone, dome(3.8, 2, 2));
}

Canvas skeleton() {
    Canvas t;
    bones(t, 16, 10);
    t.part(poly({24, 21, 24, 5.5, 25.5, 2, 27, 5.5, 27, 21}), ramp::steel,
           bevel(4.4, 2, 1.5, .1, split(25.5, .8, -.8)));
    t.part(box(22, 20.4, 29, 22.4), ramp::gold, flat(3.6, 0));
    t.part(capsule(25.5, 23.5, 25.5, 26.5, 1), ramp::wood, flat(3.6));
    t.part(melt(circle(16, 8.8, 7.3), box(12, 11, 20, 17.4, 1), 1), ramp::bone, dome(4.3, 2.6, 6, .45));
    t.stamp(11, 8,
            {".##...##", "####.####", "#r##.#r##", ".##...##", "....#", "...###", "", "..#.#.#", "..#.#.#"});
    return t.outline();
}

void royalRobe(Canvas& t) {
    t.part(poly({9, 15, 23, 15, 29, 31, 3, 31}), ramp::violet, bevel(3.2, 2.4, 4, .4, columns(5, 0, -.9)));
    t.part(box(4, 28.5, 28, 31), ramp::bone, flat(5.2, .2)).stamp(6, 29, {"#....#....#....#....#"});
    t.part(poly({12, 17, 20, 17, 18.5, 28, 13.5, 28}), ramp::ink, flat(0).within(0));
    for (const auto& [y, w] : {Point{19, 3.4}, {21.6, 2.8}, {24, 2.2}}) {
        t.part(box(16 - w, y - .8, 16 + w, y + .8, .8), ramp::bone, dome(4.4, 1.8, 1.5));
    }
}

Canvas skeletonKing() {
    Canvas t;
    royalRobe(t);
    t.part(melt(circle(16, 11.4, 6.8), box(12.4, 13, 19.6, 18.6, 1), 1), ramp::bone, dome(4.2, 2.6, 6, .4));
    t.part(poly({8.4, 8, 7, 1.4, 12, 4.4, 16, .6, 20, 4.4, 25, 1.4, 23.6, 8}), ramp::gold,
           bevel(4.2, 2.2, 3, .2));
    t.stamp(10, 5, {"....r...r", "R...R.r.R...R"});
    t.stamp(11, 10, {".##...##", "####.####", "#y##.#y##", ".##...##", "....#", "...###", "", "..#.#.#"});
    t.part(capsule(28, 12, 28, 30, 1.1), ramp::gold, dome(3.6, 2, 1.6));
    t.part(circle(28, 10, 2.7), ramp::fire, dome(3.8, 3, 2.5, .2));
    return t.stamp(27, 9, {"O"}).outline();
}

Canvas darkness() {
    const auto smoke = [](double x, double y) {
        const double r = length(x - 16, y - 16);
        const double swirl = wave(turns(x - 16, y - 16) * 4 + r * .08 + .25);
        return clamp((r - 9) * .2, 0, 2.4) + swirl * .8 * clamp((r - 7) / 6, 0, 1);
    };
    Canvas t;
    t.part(everywhere(), ramp::violet, flat(-.3, .8, add({smoke, noise(11, 6, .9)})).within(0));
    return t.stamp(7, 12,
                   {"YY.............YY", "yYYy.........yYYy", "yhYYy.......yYYhy", ".yYYy.......yYYy",
                    "..yy.........yy"});
}

Canvas ghost() {
    const auto hem = [](double x, double y) { return y - (27.2 + 2.4 * wave((x - 16) / 8.2 + .25)); };
    const Field skirt = meet({poly({7.2, 11, 24.8, 11, 25.8, 31, 6.2, 31}), hem});
    const Field body = join({circle(16, 11, 8.8), skirt});
    Canvas t;
    t.part(capsule(5, 15, 9, 19, 1.9, 2.4), ramp::cyan, dome(4.4, 2, 2));
    t.part(capsule(27, 15, 23, 19, 1.9, 2.4), ramp::cyan, dome(3.8, 2, 2));
    t.part(body, ramp::cyan, dome(4.5, 2.6, 7, .8, slope(0, -.06, 0, 12)).merged());
    t.stamp(11, 8,
            {".##....##", "####..####", "#w##..#w##", "####..####", ".##....##", "", "....##", "...tttt",
             "...tttt", "....tt"});
    return t.outline();
}

void moneybag(Canvas& t) {
    t.part(circle(23.4, 19.6, 7.4), ramp::bone, dome(3.8, 2.6, 7, .4));
    t.part(poly({20, 9.4, 26, 9.4, 24.8, 14, 21.4, 14}), ramp::bone, dome(4, 2, 2));
    t.stamp(21, 12, {"RRRR"});
    t.stamp(22, 16, {"..u", ".uuu", "u.u", ".uuu", "..u.u", "uuuu", "..u"});
}

Canvas thief() {
    Canvas t;
    t.part(capsule(10.4, 24, 9, 29.4, 2), ramp::wood, dome(2.8, 2, 2));
    t.part(capsule(16.4, 24, 17.4, 29.4, 2), ramp::wood, dome(2.8, 2, 2));
    moneybag(t);
    t.part(poly({8, 16, 18.4, 16, 21, 27.4, 5, 27.4}), ramp::moss, bevel(4.2, 2.4, 4, .4));
    t.part(box(5.6, 22, 20.4, 24.2), ramp::wood, flat(3, 0)).stamp(11, 22, {"yyy", "y.y"});
    t.part(join({circle(13, 9.6, 7.8), poly({12, 1.4, 23, 1.6, 20, 10})}), ramp::moss, dome(4.4, 2.6, 6, .4));
    t.part(ellipse(12.4, 11.4, 5.4, 5), ramp::flesh, dome(4, 2.2, 5, .2));
    t.stamp(7, 9, {"###########", "##wS###wS##", ".#S#.#.S##", "", "", "...kkkkk"});
    return t.part(capsule(17.4, 18, 20.6, 13.4, 1.9), ramp::moss, dome(4.2, 2, 2)).outline();
}

// Pointed steel two pixels wide, tilted outwards; the hilts are darker than the hands.
void daggers(Canvas& t) {
    t.stamp(2, 7,
            {"S", "Ss", "Ss", "Ss", ".Ss", ".Ss", ".Ss", "..Ss", "..Ss", "..Ss", "...Ss", "...Ss", "...Ss"});
    t.stamp(
        25, 7,
        {"....s", "...Ss", "...Ss", "...Ss", "..Ss", "..Ss", "..Ss", ".Ss", ".Ss", ".Ss", "Ss", "Ss", "Ss"});
    for (const double x : {7, 25}) t.part(circle(x, 23.4, 2.4), ramp::flesh, dome(3.6, 2, 2));
    t.stamp(3, 20, {"...UUu", "UUu"}).stamp(7, 26, {"Uu", ".u"});
    t.stamp(23, 20, {"Uuu", "...uuu"}).stamp(23, 26, {"Uu", "u"});
}

Canvas masterThief() {
    const auto folds = [](double x, double y) {
        return floorMod(std::floor(std::floor(x) + std::floor(y / 3)), 6) == 0 && y > 16 ? -.8 : 0.0;
    };
    Canvas t;
    t.part(poly({11, 11, 21, 11, 28.5, 31, 3.5, 31}), ramp::fire, bevel(2.1, 2.2, 5, .4, folds));
    t.part(poly({13, 16, 19, 16, 21, 31, 11, 31}), ramp::ink, flat(2).within(0));
    daggers(t);
    t.part(poly({16, .8, 22.5, 6, 24, 15, 20, 18, 12, 18, 8, 15, 9.5, 6}), ramp::fire, dome(2.7, 2.4, 6, .4));
    t.part(ellipse(16, 12, 5.2, 4.8), ramp::ink, flat(0).within(0));
    return t.stamp(12, 11, {"Yh....hY", ".YY..YY", "", "", "..Y..Y", "...YY"}).outline();
}

Canvas oozingFilth() {
    const Field body =
        join({ellipse(16, 23, 14, 8), circle(11, 16, 7), circle(20, 13, 7.5), circle(24, 19, 5)});
    Canvas t;
    t.part(body, ramp::acid, dome(3.6, 2.8, 6, .7, noise(4, 4, 1.2)));
    for (const Field& bubble :
         {circle(6.5, 22, 2), circle(22.5, 26, 2.4), circle(14.5, 28, 1.5), circle(27, 20, 1.4)}) {
        t.part(bubble, ramp::acid, dome(4.4, 3, 2, .2));
    }
    t.part(circle(20, 12, 3.8), ramp::bone, dome(5, 2, 3, .2)).stamp(19, 11, {"##", "##"});
    t.part(circle(11, 15, 3.1), ramp::bone, dome(5, 2, 3, .2)).stamp(10, 14, {"##", "##"});
    t.part(ellipse(17, 21.5, 6.4, 2.9), ramp::acid, flat(0, 0).within(0));
    return t.stamp(12, 19, {".w..w.w..w", ".w..w.w..w", "", "...w...w", "...w...w"}).outline();
}

void batWings(Canvas& t) {
    const auto rib = [](double x, double y) {
        return std::fabs((std::fabs(x - 16) - 5) - (20 - y) * .9) < .7 ? 1.0 : 0.0;
    };
    for (const double s : sides) {
        const Field wing = poly({16 + s * 5, 15, 16 + s * 15.4, 4.4, 16 + s * 14.8, 14, 16 + s * 13, 21,
                                 16 + s * 10.5, 18.5, 16 + s * 8, 24, 16 + s * 5, 20});
        t.part(wing, ramp::violet, bevel(2.8, 1.8, 3, .4, rib));
    }
}

Canvas demon() {
    Canvas t;
    batWings(t);
    t.part(capsule(20, 27, 26, 28, 1.2), ramp::fire, dome(3, 2, 1.5));
    t.part(poly({25.5, 25, 30.5, 28.5, 25.5, 31}), ramp::fire, flat(3));
    for (const double s : sides) {
        t.part(capsule(16 + s * 3, 24, 16 + s * 4.2, 29.5, 2), ramp::fire, dome(2.6, 2, 2));
    }
    t.part(ellipse(16, 21, 6, 7), ramp::fire, dome(3.3, 2.4, 5));
    for (const double s : sides) {
        t.part(poly({16 + s * 3, 6.5, 16 + s * 7.5, 7, 16 + s * 9.5, .8, 16 + s * 5.5, 3.5}), ramp::bone,
               bevel(4.4, 2.4, 2, .2));
    }
    t.part(join({circle(16, 10, 6.6), poly({11, 13, 21, 13, 16, 18.5})}), ramp::fire, dome(3.6, 2.6, 6, .4));
    t.stamp(11, 8,
            {"##......##", ".###..###", ".yY#..#Yy", "..y....y", "", "..######", "..w#ww#w", "...####"});
    return t.stamp(14, 20, {"oooo", "", "oooo", "", ".oo"}).outline();
}

// The beam starts at the middle of the cell: the iris stays there.
Canvas hypnoEye() {
    Canvas t;
    for (const Field& lash :
         {capsule(6, 19, 3, 28, 1.6, .8), capsule(26, 19, 29, 28, 1.6, .8), capsule(11, 23, 10, 30, 1.6, .8),
          capsule(21, 23, 22, 30, 1.6, .8), capsule(16, 24, 16, 31, 1.6, .8)}) {
        t.part(lash, ramp::fire, dome(2.6, 2, 1.5));
    }
    t.part(meet({circle(16, 28, 21.4), circle(16, 1.5, 21.8), box(1, 0, 31, 32)}), ramp::fire,
           dome(2.4, 2.2, 5));
    t.part(meet({circle(16, 27.5, 18.5), circle(16, 3, 18.8), box(3, 0, 29, 32)}), ramp::bone,
           dome(4.6, 2.6, 6));
    t.part(circle(16, 15, 6.4), ramp::violet, dome(3.6, 2.2, 7, .3));
    const Field spiral = [](double x, double y) {
        return .25 - wave(turns(x - 16, y - 15) - length(x - 16, y - 15) * .207 + .25);
    };
    t.fill(meet({spiral, circle(16, 15, 5.6)}), ramp::violet[0]);
    return t.stamp(12, 10, {".ww", "ww"}).outline();
}

}  // namespace

TileGroup creatureTiles() {
    static constexpr Tile tiles[] = {{93, skeleton},    {82, skeletonKing}, {50, darkness},
                                     {91, ghost},       {5, thief},         {28, masterThief},
                                     {42, oozingFilth}, {35, demon},        {34, hypnoEye}};
    return tiles;
}

}  // namespace gloomdeck::art
