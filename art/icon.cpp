// Icons: 256 and 128 are the title's skull, 64 to 32 a plainer one, 16 is set by hand.
#include "art/icon.h"

#include <algorithm>

#include "art/painter.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

Canvas grand(int size) {
    Canvas t(size, size, size / 256.0, 76, 59);
    titleSkull(t);
    titleCrown(t);
    return t.outline(size / 128, false);
}

void plainFace(Canvas& t) {
    for (const double s : {-1, 1}) {
        const double x = 16 + s * 4.8;
        const auto brow = [=](double u, double v) { return 14.6 - s * (u - x) * .34 - v; };
        t.part(meet({ellipse(x, 17.6, 3.7, 3.7), brow}), ramp::ink, flat(0, 0).within(0).merged());
        t.part(circle(x, 18, 1.7), ramp::fire, flat(3, 0).merged()).fill(circle(x, 18, .8), ramp::fire[5]);
    }
    t.part(poly({16, 20.4, 18.2, 23.8, 13.8, 23.8}), ramp::ink, flat(0, 0).within(0).merged());
    for (const double x : {12, 14, 17, 19}) {
        t.part(box(x, 25.8, x + 1, 30), ramp::ink, flat(2, 0).merged());
    }
}

void plainCrown(Canvas& t) {
    t.part(poly({4.6, 12.6, 3, 3.4, 9.4, 7.6, 16, 1, 22.6, 7.6, 29, 3.4, 27.4, 12.6, 16, 14}), ramp::gold,
           bevel(3.9, 2.6, 3, .3, slope(-.02, -.03, 16, 8)));
    t.part(circle(9.4, 10.6, 1.6), ramp::cyan, dome(3.6, 2.6, 1.6, 0));
    t.part(circle(16, 11, 1.6), ramp::fire, dome(3.6, 2.6, 1.6, 0));
    t.part(circle(22.6, 10.6, 1.6), ramp::cyan, dome(3.6, 2.6, 1.6, 0));
}

// Drawn on the 32 grid; the outline is 1 px at 32 and 48, 2 px at 64.
Canvas plain(int size) {
    Canvas t(size, size, size / 32.0);
    const Field head =
        melt(melt(circle(16, 17.4, 10.6), box(10, 19, 22, 29.8, 2), 2), capsule(7.6, 21, 24.4, 21, 2.6), 2);
    t.part(head, ramp::bone, dome(4.0, 2.8, 9));
    plainFace(t);
    plainCrown(t);
    return t.outline(std::max(1, size / 32), false);
}

Canvas byHand() {
    Canvas t(16, 16);
    // clang-format off
    t.stamp(0, 1,
            {".y.....Yy.....z.",
             ".Yy...yYyz...zz.",
             ".YYy.yYYyyz.zzU.",
             ".YYYyyYYyyzzzzU.",
             ".yyyryyrryyrzzU.",
             ".lllllllldddbbb.",
             ".lwwlllllldddbb.",
             ".l####ldl####bb.",
             ".l#rr#ddd#rr#bm.",
             ".dl##dd#dd##dbm.",
             "..ddddd##ddbbm..",
             "...dddddddbbm...",
             "...l#d#l#d#bm...",
             "...l#d#l#d#bm..."});
    // clang-format on
    return t.outline(1, false);
}

constexpr Colour groundColour = 0x1d2b27;
constexpr double cutSafe = .68;  // of the square's side

}  // namespace

Canvas paintIcon(int size) {
    if (size == 16) return byHand();
    return size >= 128 ? grand(size) : plain(size);
}

Canvas paintMaskableIcon(int size) {
    Canvas t(size, size);
    t.fill(box(0, 0, size, size), groundColour);
    const int inner = static_cast<int>(size * cutSafe);
    return t.lay(grand(inner), (size - inner) / 2, (size - inner) / 2);
}

}  // namespace gloomdeck::art
