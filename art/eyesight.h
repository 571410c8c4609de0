// How pictures look to others: in grey, without green or red cones, from far away.
#pragma once

#include <array>

#include "art/canvas.h"

namespace gloomdeck::art {

double luma(Colour c);
Colour grey(Colour c);
// Machado 2009, severity 1, in linear light.
Colour deuteranopia(Colour c);
Colour protanopia(Colour c);

// The picture on a ground of its own size, every colour seen through `view`.
Canvas seenOver(const Canvas& picture, const Canvas& ground, Colour (*view)(Colour));

// The picture shrunk to 8x8, red, green and blue of each cell.
using Squint = std::array<double, 8 * 8 * 3>;
Squint squint(const Canvas& tile);
// Root mean square of the differences.
double squintDistance(const Squint& a, const Squint& b);

}  // namespace gloomdeck::art
