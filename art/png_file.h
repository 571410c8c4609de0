// PNG files; only the bake tool needs them.
#pragma once

#include <string>

#include "art/canvas.h"

namespace gloomdeck::art {

// With alpha: unpainted pixels are transparent.
std::string pngFile(const Canvas& picture);

}  // namespace gloomdeck::art
