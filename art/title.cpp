// The title picture put together, with its wall and torches.
#include "art/title.h"

#include <cmath>

#include "art/painter.h"

namespace gloomdeck::art {
namespace {

constexpr int torchColumns[] = {46, 362};

// Level of a brick wall: one tone per brick, joints, lit top and left edges.
double bricks(double x, double y) {
    const double row = std::floor(y / 20), staggered = x + floorMod(row, 2) * 21, by = y - row * 20;
    const double column = std::floor(staggered / 42), bx = staggered - column * 42;
    if (bx < 2 || by < 2) return -1.4;
    const double tone = hash01(1, static_cast<std::int64_t>(column), static_cast<std::int64_t>(row)) * .9;
    return tone + (by < 4 || bx < 4 ? .5 : 0) - (by > 17 || bx > 39 ? .5 : 0);
}

// The part of the canvas where `light` exceeds a threshold, its edge broken in the dither pattern.
Field litBeyond(double threshold, const Field& light, double amp) {
    return add({[=](double x, double y) { return threshold - light(x, y); }, dithered(amp)});
}

void torchStick(Canvas& p, double cx) {
    p.part(path({{cx - 14, 250}, {cx, 256}, {cx + 14, 250}}, 3), ramp::stone, dome(3.2, 2.4, 3, .4));
    p.part(poly({cx - 8, 190, cx + 8, 190, cx + 5, 276, cx - 5, 276}), ramp::wood,
           dome(3.4, 2.6, 8, .5, add({rows(7, 196, -1.2), noise(7, 3, .9)})));
    p.part(box(cx - 9, 232, cx + 9, 239, 2), ramp::steel, bevel(3.0, 2.6, 3, .3));
    p.part(poly({cx - 18, 176, cx + 18, 176, cx + 10, 200, cx - 10, 200}), ramp::steel,
           bevel(3.2, 2.8, 6, .4, noise(8, 3, .5)));
    for (int i = -2; i <= 2; ++i) {
        const double x = cx + i * 8;
        p.part(poly({x - 3, 178, x, 166, x + 3, 178}), ramp::steel, bevel(3.6, 2.4, 2, .2));
    }
}

// The flame at a share of its full size.
Field flameOf(double cx, double size) {
    static constexpr Point tongues[] = {{-19, 168}, {-21, 150}, {-14, 126}, {-9, 140}, {-3, 96},
                                        {5, 124},   {11, 110},  {15, 136},  {20, 148}, {19, 168}};
    std::vector<Point> corners;
    for (const auto& [x, y] : tongues) corners.push_back({cx + x * size, 176 + (y - 176) * size});
    return melt(poly(corners), ellipse(cx, 176 - 18 * size, 19 * size, 20 * size), 6);
}

void torchFire(Canvas& p, int cx) {
    struct Layer {
        double size;
        const Ramp& ramp;
        double base;
    };
    for (const auto& [size, ramp, base] :
         {Layer{1.0, ramp::fire, 2.4}, {.74, ramp::fire, 4.3}, {.46, ramp::gold, 5.0}}) {
        const Field flame = flameOf(cx, size);
        const auto heat = [=](double x, double y) {
            return clamp(-flame(x, y), 0, 9) * .16 + (y - 150) * .012;
        };
        p.part(flame, ramp, flat(base, .9, heat).merged());
    }
    for (int i = 0; i < 9; ++i) {
        const int x = cx + static_cast<int>(hash01(40, i, cx) * 56) - 28;
        const int y = 84 + static_cast<int>(hash01(41, i, cx) * 70);
        p.dots(i % 3 != 0 ? ramp::fire[5] : ramp::fire[6], {{x, y}}).dots(ramp::fire[2], {{x, y + 1}});
    }
}

}  // namespace

Field mirrored(const std::vector<double>& half) {
    std::vector<Point> corners;
    const std::size_t n = half.size();
    for (std::size_t i = 0; i < n; i += 2) corners.push_back({titleMiddle + half[i], half[i + 1]});
    for (std::size_t i = n; i > 0; i -= 2) corners.push_back({titleMiddle - half[i - 2], half[i - 1]});
    return poly(corners);
}

void titleWall(Canvas& p) {
    const Field torchLight =
        add({shine(torchColumns[0], 168, 74, 92, 3.6), shine(torchColumns[1], 168, 74, 92, 3.6)});
    const Field halo = shine(titleMiddle, 210, 150, 130, 2.2);
    const Field gloom = [](double, double y) { return -clamp((y - 300) / 90, 0, 1.2); };
    const Field rough = add({bricks, noise(3, 6, 1.0), noise(4, 2, .4)});
    const Field lit = add({rough, torchLight});
    p.part(everywhere(), ramp::mossy, flat(.7, .9, add({rough, torchLight, gloom})).within(0));
    p.part(litBeyond(1.25, halo, .7), ramp::violet,
           flat(-.5, .9, add({rough, halo, gloom})).within(0, 3).merged());
    p.part(litBeyond(1.15, torchLight, .9), ramp::wood, flat(-.3, .9, lit).within(0, 5).merged());
    p.part(litBeyond(2.9, torchLight, .5), ramp::fire, flat(-.2, .9, lit).within(1, 5).merged());
}

void titleTorches(Canvas& p) {
    for (const int cx : torchColumns) {
        torchStick(p, cx);
        torchFire(p, cx);
    }
}

Canvas paintTitle() {
    Canvas p(titleWidth, titleHeight);
    titleWall(p);
    titleTorches(p);
    titleRobe(p);
    titleSkull(p);
    titleCrown(p);
    titleName(p);
    titleCards(p);
    return p;
}

Canvas paintPreview() {
    constexpr int width = previewWidth / 2, height = previewHeight / 2, aside = (width - titleWidth) / 2;
    Canvas small(width, height, 1, -aside, 0);
    titleWall(small);
    for (int y = 0; y < height;
         ++y) {  // the wall begins with the title, so that its left side is the other one's
        for (int x = 0; x < aside; ++x) small.set(x, y, small.colour(width - 1 - x, y));
    }
    small.lay(paintTitle(), aside, 0);
    Canvas p(previewWidth, previewHeight);
    for (int y = 0; y < previewHeight; ++y) {
        for (int x = 0; x < previewWidth; ++x) p.set(x, y, small.colour(x / 2, y / 2));
    }
    return p;
}

}  // namespace gloomdeck::art
