// Fingerprints of pictures, so that a change to the painter shows which pictures it altered.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "art/canvas.h"

namespace gloomdeck::art {

// FNV-1a over R, G, B of every pixel, row by row; unpainted pixels count as the key colour.
std::uint64_t pictureHash(const Canvas& t);

// "name hash" for every tile, the title picture and the icons.
std::vector<std::string> hashLines();

}  // namespace gloomdeck::art
