// Seven cards for the seven columns, upright, in an arc; each window shows terrain and a real tile 1:1.
#include <algorithm>
#include <cmath>

#include "art/painter.h"
#include "art/tiles.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

struct Card {
    int terrain;
    const Ramp& ramp;
    int thing, drop;
};

constexpr Card hand[] = {{55, ramp::floor, 69, 14},  {71, ramp::marble, 17, 6}, {60, ramp::mossy, 93, 2},
                         {37, ramp::portal, 34, -6}, {55, ramp::floor, 91, 2},  {71, ramp::marble, 48, 6},
                         {60, ramp::mossy, 35, 14}};
constexpr int firstColumn = 6, pitch = 57, topRow = 386, best = 3;

void border(Canvas& p, double x, double y, int nth) {
    p.fill(box(x + 2, y + 3, x + 58, y + 87, 6), inkColour);
    p.fill(box(x - 2, y - 2, x + 56, y + 84, 7), inkColour);
    p.part(box(x, y, x + 54, y + 82, 5), ramp::bone,
           bevel(4.6, 2.4, 3, .5, add({slope(0, -.014, x, y + 30), noise(50 + nth, 5, .6)})).merged());
    p.part(box(x + 4, y + 4, x + 50, y + 78, 3), nth == best ? ramp::gold : ramp::wood,
           bevel(2.6, 2.4, 2, .2));
}

// The colour that many steps up its ramp; colours from elsewhere stay.
Colour lifted(Colour c, const Ramp& ramp, double steps) {
    const auto nth = std::ranges::find(ramp, c) - ramp.begin();
    if (nth == std::ssize(ramp)) return c;
    const double step = std::floor(static_cast<double>(nth) + steps);
    return ramp[static_cast<std::size_t>(clamp(step, 0, 6))];
}

// Terrain under a light that falls on the thing in its middle and fades towards both ends.
void window(Canvas& p, int x, int y, const Card& card) {
    const Canvas terrain = paintTile(card.terrain);
    for (const Pixel& at : p.inside(box(x + 6, y + 6, x + 48, y + 76, 2))) {
        const double away = length(at.x - x - 24, (at.y - y - 36) * .7);
        const double steps = 2.9 - away * .07 + bayer(at.x, at.y);
        const Colour unlit = terrain.colour((at.x - x - 11) & 31, (at.y - y - 25) & 31);
        p.set(at.x, at.y, lifted(unlit, card.ramp, steps));
    }
    p.lay(paintTile(card.thing), x + 11, y + 25);
}

void ornament(Canvas& p, double x, double y, const Ramp& ramp) {
    p.part(box(x + 15, y - .6, x + 39, y + .6), ramp::gold, flat(3, 0).merged());
    p.part(poly({x + 27, y - 5, x + 32, y, x + 27, y + 5, x + 22, y}), ramp, bevel(3.9, 2.4, 3, .2));
}

}  // namespace

void titleCards(Canvas& p) {
    for (const int nth : {0, 6, 1, 5, 2, 4, 3}) {
        const Card& card = hand[nth];
        const int x = firstColumn + nth * pitch, y = topRow + card.drop;
        border(p, x, y, nth);
        window(p, x, y, card);
        for (const int row : {y + 13, y + 69}) ornament(p, x, row, nth == best ? ramp::fire : ramp::gold);
    }
}

}  // namespace gloomdeck::art
