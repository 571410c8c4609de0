// The headers of a Windows bitmap file, and what is wrong with them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/bytes.h"

namespace gloomdeck {

inline constexpr std::size_t paletteEntrySize = 4;

/// As files number it; they may state any other number.
enum class Compression : std::uint32_t { none, runLengths8, runLengths4, masks };

struct BitmapHeader {
    std::size_t pixelOffset = 0;
    std::size_t infoSize = 0;
    std::uint32_t planes = 0;
    Compression compression = Compression::none;
    int width = 0;
    int height = 0;
    int bitsPerPixel = 0;
    bool topDown = false;
    std::size_t paletteOffset = 0;
    std::size_t paletteCount = 0;
    std::array<std::uint32_t, 3> masks{};  ///< red, green, blue; none overlap, and each is one run of bits
};

/// True when the pixels are told apart into colours by the masks.
inline bool hasMasks(const BitmapHeader& header) { return header.compression == Compression::masks; }

/// Bytes from one row to the next.
std::size_t rowSize(const BitmapHeader& header);

/// Reads the header of a file whose rows all lie in it. Otherwise the answer says what is wrong with the file
/// and what to do, to stand behind its name; empty: nothing is.
std::string_view readBitmapHeader(const Bytes& file, BitmapHeader& header);

}  // namespace gloomdeck
