// The skull of the title picture and of the large icons: relief from one height function, sockets and teeth
// on top.
#include <cmath>
#include <cstdlib>

#include "art/painter.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

constexpr double middle = titleMiddle;
constexpr double sides[] = {-1, 1};

struct Hill {
    double x, y, rx, ry, height;
};

Field hill(double side, const Hill& h) { return bump(middle + side * h.x, h.y, h.rx, h.ry, h.height); }

Field depthBelow(const Field& shape, double deepest, double steep) {
    return [=](double x, double y) { return clamp(-shape(x, y), 0, deepest) * steep; };
}

void jawbone(Canvas& p) {
    const Field jaw = melt(mirrored({60, 226, 54, 268, 36, 297, 18, 308}), ellipse(middle, 298, 27, 12), 8);
    std::vector<Field> hills{depthBelow(jaw, 16, 1.3), bump(middle, 288, 40, 10, -5), noise(21, 7, 2.4),
                             noise(22, 3, .7)};
    for (const double s : sides) {
        hills.push_back(hill(s, {13, 300, 16, 13, 9}));
        hills.push_back(hill(s, {50, 268, 12, 22, 5}));
    }
    p.fill(grow(jaw, 2), inkColour);
    p.part(jaw, ramp::bone, relief(3.0, 3.2, add(hills), .8, slope(-.007, -.004, middle, 280)));
    for (const double s : sides) {
        p.part(poly({middle + s * 50, 236, middle + s * 49, 262, middle + s * 41, 282, middle + s * 33, 262,
                     middle + s * 36, 240}),
               ramp::ink, flat(1, .8).within(0).merged());
    }
}

Field cranium() {
    Field head = melt(ellipse(middle, 180, 80, 72), ellipse(middle, 212, 62, 40), 12);
    for (const double s : sides) {  // cheekbones
        head = melt(head, capsule(middle + s * 34, 233, middle + s * 67, 222, 11, 7), 9);
    }
    return melt(head,
                poly({middle - 42, 226, middle + 42, 226, middle + 37, 262, middle + 26, 268, middle - 26,
                      268, middle - 37, 262}),
                8);
}

Field craniumHeight(const Field& head) {
    static constexpr Hill pairs[] = {{35, 179, 36, 13, 13}, {74, 204, 13, 30, -14},  // brow, temple
                                     {54, 230, 26, 11, 14}, {40, 248, 13, 13, -12},  // cheekbone, hollow
                                     {31, 160, 34, 22, 5},  {16, 240, 7, 14, 6}};    // forehead, nose
    const auto roundness = [=](double x, double y) {
        const double k = 1 - clamp(-head(x, y) / 66, 0, 1);
        return std::sqrt(1 - k * k) * 60;
    };
    std::vector<Field> hills{roundness,
                             bump(middle, 250, 34, 24, 11),
                             bump(middle, 214, 9, 22, 9),
                             bump(middle, 186, 16, 9, 5),
                             noise(5, 9, 2.6),
                             noise(6, 3, .8)};
    for (const double s : sides) {
        for (const Hill& h : pairs) hills.push_back(hill(s, h));
    }
    return add(std::move(hills));
}

void eye(Canvas& p, double s) {
    const double cx = middle + s * 34;
    const auto brow = [=](double x, double y) { return (187 + (1 - s * (x - cx) / 24) * 6) - y; };
    const Field socket =
        meet({melt(ellipse(cx, 206, 24.5, 23), box(cx - 17, 192, cx + 17, 214, 6), 4), brow});
    p.part(grow(socket, 2.4), ramp::bone, flat(1.3, .8, slope(.03, .06, cx, 206)).within(0).merged());
    p.part(socket, ramp::ink, flat(0, 0).within(0).merged());
    p.part(meet({socket, circle(cx, 210, 16)}), ramp::fire,
           flat(-.9, 1.2, shine(cx, 210, 10, 9, 6.4)).within(0).merged());
    p.part(ellipse(cx, 210, 4.2, 3.8), ramp::gold, flat(5, .8).merged());
    p.fill(ellipse(cx - .6, 209.4, 2, 1.8), ramp::gold[6]);
}

void nose(Canvas& p) {
    std::vector<Field> nostrils;
    for (const double s : sides) {
        nostrils.push_back(
            join({poly({middle + s, 222, middle + s * 13, 243, middle + s * 9, 248, middle + s * 2, 243}),
                  ellipse(middle + s * 7, 242, 6, 5.4)}));
    }
    const Field hole = join(std::move(nostrils));
    p.part(grow(hole, 1.6), ramp::bone, flat(1.4, .6).merged());
    p.part(hole, ramp::ink, flat(0, 0).within(0).merged());
    p.part(poly({middle - 1, 230, middle + 1, 230, middle + 1.6, 247, middle - 1.6, 247}), ramp::bone,
           flat(2, .5).merged());
}

struct ToothRow {
    double top, h, w, pitch, lift, tone;
};

void tooth(Canvas& p, int k, const ToothRow& row) {
    const double x = middle + k * row.pitch, y = row.top - k * k * row.lift;
    const double half = row.w - std::abs(k) * .35;
    p.part(box(x - half, y, x + half, y + row.h - std::abs(k) * .6, 3), ramp::bone,
           bevel(4.5 - std::abs(k) * .3, 2.6, 3.4, .4, slope(-.01, row.tone, x, y + 6)));
}

// Upper row over lower row, bent round the jaw: outer teeth smaller, darker and higher.
void teeth(Canvas& p) {
    p.part(poly({middle - 37, 262, middle + 37, 262, middle + 33, 280, middle + 20, 286, middle - 20, 286,
                 middle - 33, 280}),
           ramp::ink, flat(0, 0).within(0));
    for (const int k : {3, -3, 2, -2, 1, -1, 0}) {
        tooth(p, k, {274, 11, 4.4, 8.9, .8, .02});
        tooth(p, k, {259, 15, 5.2, 10.4, .5, -.02});
    }
}

void cracks(Canvas& p) {
    const std::vector<Point> lines[] = {{{258, 152}, {250, 164}, {254, 172}, {243, 186}},
                                        {{250, 164}, {262, 170}},
                                        {{136, 158}, {142, 168}, {139, 178}},
                                        {{222, 292}, {217, 300}, {220, 306}}};
    for (const std::vector<Point>& line : lines) {
        p.part(shift(path(line, 1.0, .6), 1.4, 1), ramp::bone, flat(5, 0).merged());
        p.part(path(line, 1.3, .7), ramp::bone, flat(0, 0).within(0).merged());
    }
}

}  // namespace

void titleSkull(Canvas& p) {
    jawbone(p);
    const Field head = cranium();
    p.fill(grow(head, 2), inkColour);
    p.part(head, ramp::bone, relief(3.4, 3.3, craniumHeight(head), .8, slope(-.006, -.006, middle, 190)));
    for (const double s : sides) eye(p, s);
    nose(p);
    teeth(p);
    cracks(p);
}

}  // namespace gloomdeck::art
