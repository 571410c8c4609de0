// The crown of the title picture and of the large icons.
#include <vector>

#include "art/painter.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

constexpr double middle = titleMiddle;

using Points = std::vector<Point>;

// All points are offsets from the middle line.
const Points rim{{-80, 134}, {-62, 145}, {-34, 152}, {0, 154}, {34, 152}, {62, 145}, {80, 134}};
const Points spikes{{88, 84},   {54, 117}, {46, 76},   {23, 113}, {0, 68},
                    {-23, 113}, {-46, 76}, {-54, 117}, {-88, 84}};
const Points backSpikes{{-76, 120}, {-66, 92}, {-44, 112}, {-24, 84}, {0, 110},
                        {24, 84},   {44, 112}, {66, 92},   {76, 120}};

// Squeezed towards the middle and moved down.
Points placed(const Points& offsets, double squeeze = 1, double down = 0) {
    Points out;
    for (const auto& [x, y] : offsets) out.push_back({middle + x * squeeze, y + down});
    return out;
}

Field crownBody() {
    Points outline = rim;
    outline.insert(outline.end(), spikes.begin(), spikes.end());
    return poly(placed(outline));
}

void bands(Canvas& p) {
    p.part(path(placed(rim, 1, -3), 3.6), ramp::gold, dome(4.0, 3.4, 3.6, .4));
    p.part(path(placed(rim, .985, -23), 2.2), ramp::gold, dome(4.0, 3.4, 2.2, .4));
}

void knobs(Canvas& p) {
    for (std::size_t i = 0; i < spikes.size(); i += 2) {
        const auto& [x, y] = spikes[i];
        p.part(circle(middle + x, y, 7), ramp::gold, dome(4.0, 3.4, 7));
        p.fill(circle(middle + x - 2.4, y - 3, 1.3), white);
    }
}

void gems(Canvas& p) {
    struct Gem {
        double x, y, r;
        const Ramp& ramp;
    };
    static constexpr Gem row[] = {{0, 141, 8.4, ramp::fire},
                                  {-32, 138.4, 6, ramp::cyan},
                                  {32, 138.4, 6, ramp::cyan},
                                  {-59, 131.6, 5, ramp::acid},
                                  {59, 131.6, 5, ramp::acid}};
    for (const auto& [x, y, r, ramp] : row) {
        p.part(circle(middle + x, y, r + 2.2), ramp::gold, bevel(3.4, 3, 2.4, .3));
        p.part(circle(middle + x, y, r), ramp, dome(3.1, 3.4, r, .4));
        p.fill(circle(middle + x - r * .36, y - r * .36, r * .2), white);
    }
}

}  // namespace

void titleCrown(Canvas& p) {
    const Field back = poly(placed(backSpikes)), body = crownBody();
    p.fill(grow(back, 2), inkColour).part(back, ramp::gold, flat(1.3, .8).merged());
    p.part(ellipse(middle, 122, 70, 25), ramp::fire, dome(1.9, 2.2, 24, .8, noise(31, 6, .8)));
    p.fill(grow(body, 2.2), inkColour);
    const auto bulge = [=](double x, double y) {
        return clamp(-body(x, y), 0, 5) * 1.4 - (x - middle) * (x - middle) * .006;
    };
    p.part(body, ramp::gold,
           relief(3.3, 4.0, add({bulge, noise(9, 5, 1.6)}), .6, slope(-.005, -.006, middle, 120)));
    bands(p);
    knobs(p);
    gems(p);
}

}  // namespace gloomdeck::art
