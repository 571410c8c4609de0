// Views of pictures and distances between them.
#include "art/eyesight.h"

#include <cmath>

namespace gloomdeck::art {
namespace {

double channel(Colour c, int nth) { return c >> (16 - 8 * nth) & 255; }

using Cones = double[3][3];

Colour seenWith(const Cones& cones, Colour c) {
    double linear[3];
    for (int i = 0; i < 3; ++i) linear[i] = std::pow(channel(c, i) / 255, 2.2);
    Colour out = 0;
    for (const auto& row : cones) {
        const double v = clamp(linear[0] * row[0] + linear[1] * row[1] + linear[2] * row[2], 0, 1);
        out = out << 8 | static_cast<Colour>(std::pow(v, 1 / 2.2) * 255);
    }
    return out;
}

}  // namespace

double luma(Colour c) { return channel(c, 0) * .2126 + channel(c, 1) * .7152 + channel(c, 2) * .0722; }

Colour grey(Colour c) { return static_cast<Colour>(luma(c)) * 0x010101; }

Colour deuteranopia(Colour c) {
    return seenWith({{.367322, .860646, -.227968}, {.280085, .672501, .047413}, {-.011820, .042940, .968881}},
                    c);
}

Colour protanopia(Colour c) {
    return seenWith(
        {{.152286, 1.052583, -.204868}, {.114503, .786281, .099216}, {-.003882, -.048116, 1.051998}}, c);
}

Canvas seenOver(const Canvas& picture, const Canvas& ground, Colour (*view)(Colour)) {
    Canvas t = ground;
    t.lay(picture, 0, 0);
    for (int y = 0; y < t.height(); ++y) {
        for (int x = 0; x < t.width(); ++x) t.set(x, y, view(t.colour(x, y)));
    }
    return t;
}

Squint squint(const Canvas& tile) {
    Squint cells{};
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            for (int c = 0; c < 3; ++c) {
                const int index = (y / 4 * 8 + x / 4) * 3 + c;
                cells[static_cast<std::size_t>(index)] += channel(tile.colour(x, y), c) / 16;
            }
        }
    }
    return cells;
}

double squintDistance(const Squint& a, const Squint& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += (a[i] - b[i]) * (a[i] - b[i]);
    return std::sqrt(sum / static_cast<double>(a.size()));
}

}  // namespace gloomdeck::art
