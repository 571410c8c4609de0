// Pixels: 32-bit ARGB values, and the key colour of images.
#pragma once

#include <cstdint>

namespace gloomdeck {

using Colour = std::uint32_t;  ///< 0xAARRGGBB

inline constexpr Colour transparentColour = 0xFFFF00FF;

/// True for the key colour, whatever the pixel's alpha.
constexpr bool isTransparent(Colour pixel) { return (pixel & 0x00FFFFFF) == 0x00FF00FF; }

}  // namespace gloomdeck
