// Pictures as files: 24-bit bitmaps, the strips of tiles that the game loads, and SVG.
#pragma once

#include <string>

#include "art/canvas.h"

namespace gloomdeck::art {

// A bottom-up 24-bit bitmap file; unpainted pixels have the key colour.
std::string bitmapFile(const Canvas& picture);

// Tiles first .. last side by side; unused numbers stay unpainted.
Canvas tileStrip(int first, int last);

// One path per colour, of a rectangle per run of equal pixels in a row.
std::string svgFile(const Canvas& picture);

}  // namespace gloomdeck::art
