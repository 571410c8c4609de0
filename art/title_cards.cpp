// Seven cards for the seven columns, upright, in an arc; each window shows terrain and a real tile 1:1.
#include <cmath>

#include "art/painter.h"
#include "art/tiles.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

struct Card {
    int terrain, thing, drop;
};

constexpr Card hand[] = {{55, 69, 14}, {71, 17, 6}, {60, 93, 2}, {37, 34, -6},
                         {55, 91, 2},  {71, 48, 6}, {60, 35, 14}};
constexpr int firstColumn = 6, pitch = 57, topRow = 386, best = 3;

void border(Canvas& p, double x, double y, int nth) {
    p.fill(box(x + 2, y + 3, x + 58, y + 87, 6), inkColour);
    p.fill(box(x - 2, y - 2, x + 56, y + 84, 7), inkColour);
    p.part(box(x, y, x + 54, y + 82, 5), ramp::bone,
           bevel(4.6, 2.4, 3, .5, add({slope(0, -.014, x, y + 30), noise(50 + nth, 5, .6)})).merged());
    p.part(box(x + 4, y + 4, x + 50, y + 78, 3), nth == best ? ramp::gold : ramp::wood,
           bevel(2.6, 2.4, 2, .2));
}

// Terrain darkened towards both ends, the thing in its middle.
void window(Canvas& p, int x, int y, const Card& card) {
    const Field opening = box(x + 6, y + 6, x + 48, y + 76, 2);
    const Canvas terrain = paintTile(card.terrain);
    for (const Pixel& at : p.inside(opening)) {
        p.set(at.x, at.y, terrain.colour((at.x - x - 11) & 31, (at.y - y - 25) & 31));
    }
    const auto ends = [=](double, double row) { return 27 - std::fabs(row - y - 41); };
    p.part(meet({opening, add({ends, dithered(9)})}), ramp::ink, flat(1.2, .8).merged());
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
