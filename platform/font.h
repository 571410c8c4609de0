// The 8 x 8 font: one bit a pixel.
#pragma once

#include <array>
#include <cstdint>

namespace gloomdeck {

inline constexpr int glyphSize = 8;  ///< pixels a side; the pitch of every text

/// Eight rows top to bottom; bit 7 is the leftmost pixel.
using Glyph = std::array<std::uint8_t, glyphSize>;

/// The picture of a printable ASCII character (32 to 126); any other has the blank's.
const Glyph& glyphOf(char character);

}  // namespace gloomdeck
