// The name across the title: top edge straight, lower edge arched over the crown, chiselled to a ridge.
#include <string_view>
#include <vector>

#include "art/painter.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

using Corners = std::vector<double>;

// Drawn on a grid of 16 units; corners hand-cut, no two stems alike.
struct Letter {
    char sign;
    double width;
    Corners outline, hole;
};

// clang-format off
const Letter letters[] = {
    {'G', 12, {4, 0, 11.4, .4, 11.9, 5, 9.2, 3.9, 5.4, 4, 4.3, 5, 4.2, 11, 5.2, 12.2, 8, 12, 8, 9.7, 6.2, 9.3, 6.6, 7,
               12.2, 6.8, 11.9, 13.2, 9.6, 16, 3.4, 15.8, .3, 12.6, .1, 3.4}, {}},
    {'L', 10, {-.3, .3, 4.5, 0, 4.2, 11.6, 7.2, 12, 10.2, 9.4, 9.9, 15.9, .3, 16, .2, 8}, {}},
    {'O', 12, {3.6, 0, 8.6, .3, 12, 3.8, 11.8, 12.6, 8.2, 16, 3.4, 15.7, 0, 12.2, .2, 3.4},
              {5, 4.1, 7.2, 4.3, 7.9, 5.2, 7.8, 11, 7, 12, 5, 11.8, 4.2, 11, 4.1, 5}},
    {'o', 12, {3.2, .3, 8.8, 0, 11.8, 3.3, 12, 12.2, 8.7, 15.8, 3.7, 16, .2, 12.8, 0, 3.7},
              {4.8, 4.3, 7.2, 4.1, 8, 5, 7.8, 10.8, 7.2, 11.8, 4.9, 12, 4.1, 11.1, 4.2, 5.1}},
    {'M', 15.4, {-.2, .3, 4.3, 0, 7.8, 5.6, 11.2, .2, 15.6, 0, 15.3, 15.8, 11.2, 16.2, 11.3, 7.8, 7.8, 13, 4.2, 7.4,
                 4.3, 16, .2, 15.7}, {}},
    {'D', 12, {-.3, 0, 8.2, .3, 11.9, 4, 12, 12, 8.3, 15.8, 0, 16.1, .3, 8},
              {4.3, 4.1, 6.8, 4.2, 7.9, 5.4, 7.8, 11, 6.7, 12, 4.2, 12}},
    {'E', 10.2, {.2, 0, 9.8, .2, 10.2, 4.8, 7.4, 3.9, 4.3, 4, 4.3, 6.1, 7.8, 5.8, 7.4, 9.8, 4.2, 9.4, 4.1, 12, 7.4, 12,
                 10.5, 10.2, 10, 16, -.2, 15.8}, {}},
    {'C', 11.4, {3.6, 0, 11, .4, 11.5, 5.4, 8.6, 4, 5.2, 4.1, 4.3, 5, 4.1, 11, 5.2, 12, 8.6, 12, 11.6, 10.6, 10.8, 15.8,
                 3.4, 16, .1, 12.6, .2, 3.4}, {}},
    {'K', 12.4, {0, 0, 4.3, .3, 4.1, 5.6, 7.4, .2, 12.2, -.2, 8, 7.4, 12.9, 16.2, 7.8, 15.7, 5.3, 10.4, 4.2, 11.8,
                 4.3, 16, .1, 15.8}, {}},
};
// clang-format on

const Letter& letterOf(char sign) {
    for (const Letter& letter : letters) {
        if (letter.sign == sign) return letter;
    }
    return letters[0];
}

// Corners moved to their place; the arch makes letters longer towards both ends.
Field carved(const Corners& corners, double left, double drop, double scale) {
    Corners out;
    for (std::size_t i = 0; i < corners.size(); i += 2) {
        const double x = left + corners[i] * scale, aside = (x - titleMiddle) / 190;
        out.push_back(x);
        out.push_back(10 + drop + corners[i + 1] / 16 * (47 + 25 * aside * aside));
    }
    return poly(std::move(out));
}

Field wholeWord() {
    constexpr std::string_view name = "GLOoMDECK";
    constexpr double drops[] = {0, 1, -1, 1, 0, -1, 1, 0, 0};
    constexpr double scale = 3.32;
    double left = 12;
    std::vector<Field> shapes;
    for (std::size_t n = 0; n < name.size(); ++n) {
        const Letter& letter = letterOf(name[n]);
        Field shape = carved(letter.outline, left, drops[n], scale);
        if (!letter.hole.empty()) shape = cut(shape, {carved(letter.hole, left, drops[n], scale)});
        shapes.push_back(shape);
        left += (letter.width + 1.05) * scale;
    }
    return join(std::move(shapes));
}

Field nick(double x0, double y0, double x1, double y1) { return capsule(x0, y0, x1, y1, 1.1, .3); }

}  // namespace

void titleName(Canvas& p) {
    const Field word =
        cut(wholeWord(),
            {nick(30, 13, 35, 22), nick(70, 61, 66, 55), nick(128, 56, 131, 50), nick(186, 10, 188, 18),
             nick(246, 33, 241, 36), nick(296, 12, 292, 20), nick(352, 74, 349, 66), nick(391, 64, 383, 62)});
    p.fill(grow(shift(word, 3, 4), 3), inkColour).fill(grow(word, 3), inkColour);
    p.part(shift(word, 1, 2), ramp::wood, flat(1.4, .6).merged());
    const Field grain = add({slope(0, -.03, titleMiddle, 36), noise(60, 5, .9), noise(61, 2, .3)});
    p.part(word, ramp::gold, bevel(3.9, 3.4, 6.4, .6, grain).merged());
}

}  // namespace gloomdeck::art
