// The pixels of bitmap files, of every depth, copied into an image.
#include "platform/bitmap.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>

#include "platform/bitmap_header.h"
#include "platform/frame.h"
#include "platform/host.h"

namespace gloomdeck {

namespace {

Colour opaque(const std::uint8_t* blueGreenRed) {
    return 0xFF000000 | static_cast<Colour>(blueGreenRed[2]) << 16 |
           static_cast<Colour>(blueGreenRed[1]) << 8 | blueGreenRed[0];
}

Colour paletteColour(const BitmapHeader& h, const Bytes& file, std::size_t index) {
    if (index >= h.paletteCount) return 0xFF000000;
    return opaque(file.data() + h.paletteOffset + index * paletteEntrySize);
}

// A channel of any width, as 0 to 255.
Colour channel(std::uint32_t pixel, std::uint32_t mask) {
    const int shift = std::countr_zero(mask);
    const std::uint64_t highest = mask >> shift;
    const std::uint64_t value = (pixel & mask) >> shift;
    return static_cast<Colour>((255 * value + highest / 2) / highest);
}

Colour maskedColour(const BitmapHeader& h, std::uint32_t pixel) {
    const auto [red, green, blue] = h.masks;
    return 0xFF000000 | channel(pixel, red) << 16 | channel(pixel, green) << 8 | channel(pixel, blue);
}

Colour pixelOf(const BitmapHeader& h, const Bytes& file, std::size_t row, int x) {
    const auto bits = static_cast<std::size_t>(h.bitsPerPixel);
    const std::size_t bit = static_cast<std::size_t>(x) * bits;
    const std::size_t at = row + bit / 8;
    if (hasMasks(h)) return maskedColour(h, little32(file, at));
    if (bits >= 24) return opaque(file.data() + at);
    const std::size_t shift = 8 - bits - bit % 8;
    return paletteColour(h, file, (file[at] >> shift) & ((std::size_t{1} << bits) - 1));
}

void copyPixels(const BitmapHeader& h, const Bytes& file, Image& target) {
    for (int y = 0; y < std::min(h.height, target.height); ++y) {
        const int stored = h.topDown ? y : h.height - 1 - y;
        const std::size_t row = h.pixelOffset + rowSize(h) * static_cast<std::size_t>(stored);
        Colour* to = target.pixels.data() + static_cast<std::ptrdiff_t>(y) * target.width;
        for (int x = 0; x < std::min(h.width, target.width); ++x) to[x] = pixelOf(h, file, row, x);
    }
}

std::string_view copyFile(const std::string& path, Image& target) {
    if (!fileExists(path)) return "is missing; put it there again";
    const std::optional<Bytes> file = fileContents(path);
    return file ? decodeBitmap(*file, target) : "cannot be read; look at who may read it, and at its size";
}

}  // namespace

std::string_view decodeBitmap(const Bytes& file, Image& target) {
    BitmapHeader header;
    const std::string_view fault = readBitmapHeader(file, header);
    if (fault.empty()) copyPixels(header, file, target);
    return fault;
}

void loadBitmap(const std::string& path, Image& target) {
    const std::string_view fault = copyFile(path, target);
    if (!fault.empty()) return host::warn("the picture " + nativePath(path) + " " + std::string(fault));
    if (&target == &screen()) frameChanged();
}

}  // namespace gloomdeck
