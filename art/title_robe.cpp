// The robe of the title picture: cloth that falls from a clasp, under a collar of ermine.
#include "art/painter.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

constexpr Point clasp{titleMiddle, 333};
constexpr Point collar{titleMiddle, 300};
constexpr double collarWidth = 104, collarHeight = 30;  // from its middle
constexpr int rings = 9, strokes = 110;

// Folds run out from the clasp, gathered there, and then fall like thrown stones.
double folds(double x, double y) {
    const double dx = x - clasp.x, dy = y - clasp.y, turn = turns(dx, dy - dx * dx * .0022);
    const double gathered = clamp((length(dx, dy) - 6) * .06, 0, 6);
    return (wave(turn * 19 + wave(turn * 5) * .3) + .3 * wave(turn * 43)) * gathered;
}

double shadeOfCollar(double x, double y) {
    const double away = length((x - collar.x) / 112, (y - collar.y - 6) / 38);
    return -clamp(1.15 - away, 0, .3) * 5;
}

// The corners lie behind the cards.
void cloth(Canvas& p) {
    const Field cloak =
        mirrored({0, 276, 58, 290, 108, 304, 136, 318, 154, 340, 164, 368, 171, 404, 178, titleHeight + 1});
    const auto rim = [=](double x, double y) { return clamp(-cloak(x, y), 0, 40) * .7; };
    p.fill(grow(cloak, 2.5), inkColour);
    p.part(cloak, ramp::violet,
           relief(2.5, 3.0, add({folds, rim}), .8,
                  add({slope(0, -.009, titleMiddle, 330), noise(8, 5, .5), shadeOfCollar})));
}

// A share of the way from the collar's middle to its rim; turn .5 is straight down.
Point onCollar(double turn, double share) {
    const Point unit = polar(0, 0, 64, turn);
    return {collar.x + unit.x / 64 * collarWidth * share, collar.y + unit.y / 64 * collarHeight * share};
}

double jitter(int seed, int nth) { return hash01(seed, nth, 0) - .5; }

struct Stroke {
    double share;
    Point root;
    Field hair;
};

// A short stroke of fur that points outwards and hangs a little.
Stroke strokeOf(int ring, int nth) {
    const double share = .94 - ring * .075;
    const double turn = (nth + jitter(70 + ring, nth) + .5 * (ring % 2)) / strokes;
    const Point root = onCollar(turn, share + jitter(80 + ring, nth) * .05);
    const Point tip = onCollar(turn + jitter(90 + ring, nth) * .01, share + .1);
    return {share, root, capsule(root.x, root.y, tip.x, tip.y + 2.4, 2, .5)};
}

// The collar is rounded: light on its upper left, in shade towards the rim and the neck.
double toneOf(const Stroke& s) {
    static const Field clumps = noise(12, 9, 1.6);
    const double side = (s.root.x - collar.x) / collarWidth, low = (s.root.y - collar.y) / collarHeight;
    const double round = s.share - .62;
    return 4.5 - side * .8 - low - round * round * 9 + clumps(s.root.x, s.root.y);
}

void furEdge(Canvas& p) {
    for (int nth = 0; nth < strokes; ++nth) p.fill(grow(strokeOf(0, nth).hair, 1.6), inkColour);
    p.fill(ellipse(collar.x, collar.y, collarWidth - 3, collarHeight - 1), ramp::bone[3]);
}

void furRing(Canvas& p, int ring) {
    for (int nth = 0; nth < strokes; ++nth) {
        const Stroke s = strokeOf(ring, nth);
        p.part(s.hair, ramp::bone, flat(toneOf(s) + jitter(60 + ring, nth) * 1.5, .5).merged());
    }
}

// Black tails hang from the fur and taper.
void tails(Canvas& p, int count, double share, double apart) {
    for (int k = 0; k < count; ++k) {
        const auto& [x, y] = onCollar(.5 + (k - (count - 1) / 2.0) * apart, share);
        const double lean = (x - collar.x) * .05;
        p.part(path({{x, y}, {x + lean / 2, y + 5}, {x + lean, y + 15}}, 3.4, .5), ramp::ink,
               flat(3, .6).merged());
    }
}

// From the rim inwards, so that the rings lie over each other like shingles and over the roots of the tails.
void ermine(Canvas& p) {
    furEdge(p);
    for (int ring = 0; ring < rings; ++ring) {
        furRing(p, ring);
        if (ring == 4) tails(p, 10, .74, .056);
        if (ring == 7) tails(p, 5, .46, .085);
    }
}

}  // namespace

void titleRobe(Canvas& p) {
    cloth(p);
    ermine(p);
    p.part(circle(clasp.x, clasp.y, 12), ramp::gold, bevel(3.9, 2.8, 5, .4));
    p.part(circle(clasp.x, clasp.y, 7.4), ramp::fire, dome(3.2, 3.2, 7));
    p.stamp(199, 327, {".ww", "ww", "w"});
}

}  // namespace gloomdeck::art
