// Pictures as SVG.
#pragma once

#include <string>

#include "art/canvas.h"

namespace gloomdeck::art {

// One rectangle per run of equal pixels in a row.
std::string svgFile(const Canvas& picture);

}  // namespace gloomdeck::art
