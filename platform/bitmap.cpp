#include "platform/bitmap.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "platform/frame.h"

namespace gloomdeck {

namespace {

constexpr int largestSide = 1 << 14;
constexpr std::size_t fileHeaderSize = 14;
constexpr std::size_t smallestInfoHeader = 40;
constexpr std::size_t paletteEntrySize = 4;
constexpr std::size_t headersSize = fileHeaderSize + smallestInfoHeader;

struct BitmapHeader {
    std::size_t pixelOffset = 0;
    std::size_t paletteOffset = 0;
    std::size_t paletteCount = 0;
    int width = 0;
    int height = 0;
    int bitsPerPixel = 0;
    bool topDown = false;
};

std::uint32_t little32(const Bytes& file, std::size_t at) {
    return file[at] | static_cast<std::uint32_t>(file[at + 1]) << 8 |
           static_cast<std::uint32_t>(file[at + 2]) << 16 | static_cast<std::uint32_t>(file[at + 3]) << 24;
}

std::uint32_t little16(const Bytes& file, std::size_t at) {
    return file[at] | static_cast<std::uint32_t>(file[at + 1]) << 8;
}

std::size_t rowSize(const BitmapHeader& h) {
    const auto bits = static_cast<std::size_t>(h.width) * static_cast<std::size_t>(h.bitsPerPixel);
    return (bits + 31) / 32 * 4;
}

bool isKnownDepth(int bits) { return bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32; }

// Where the palette lies; its size is cut to the file, so that a lying count reads nothing outside.
void locatePalette(BitmapHeader& h, const Bytes& file) {
    const std::size_t most = std::size_t{1} << h.bitsPerPixel;
    const std::size_t stated = little32(file, 46);
    const std::size_t fits = (file.size() - h.paletteOffset) / paletteEntrySize;
    h.paletteCount = std::min({stated == 0 ? most : stated, most, fits});
}

bool pixelsAreWhole(const BitmapHeader& h, const Bytes& file) {
    const std::size_t needed = rowSize(h) * static_cast<std::size_t>(h.height);
    return h.pixelOffset >= headersSize && h.pixelOffset <= file.size() &&
           needed <= file.size() - h.pixelOffset;
}

std::optional<BitmapHeader> headerOf(const Bytes& file) {
    if (file.size() < headersSize || file[0] != 'B' || file[1] != 'M') return {};
    const std::size_t infoSize = little32(file, 14);
    const auto width = static_cast<std::int32_t>(little32(file, 18));
    const auto height = static_cast<std::int32_t>(little32(file, 22));
    const bool plain = little16(file, 26) == 1 && little32(file, 30) == 0;
    if (!plain || infoSize < smallestInfoHeader || infoSize > file.size() - fileHeaderSize) return {};
    if (width < 1 || width > largestSide || height == 0 || height < -largestSide || height > largestSide)
        return {};
    BitmapHeader h{.pixelOffset = little32(file, 10),
                   .paletteOffset = fileHeaderSize + infoSize,
                   .width = width,
                   .height = height < 0 ? -height : height,
                   .bitsPerPixel = static_cast<int>(little16(file, 28)),
                   .topDown = height < 0};
    if (!isKnownDepth(h.bitsPerPixel) || !pixelsAreWhole(h, file)) return {};
    if (h.bitsPerPixel <= 8) locatePalette(h, file);
    return h;
}

Colour opaque(const std::uint8_t* blueGreenRed) {
    return 0xFF000000 | static_cast<Colour>(blueGreenRed[2]) << 16 |
           static_cast<Colour>(blueGreenRed[1]) << 8 | blueGreenRed[0];
}

Colour paletteColour(const BitmapHeader& h, const Bytes& file, std::size_t index) {
    if (index >= h.paletteCount) return 0xFF000000;
    return opaque(file.data() + h.paletteOffset + index * paletteEntrySize);
}

Colour pixelOf(const BitmapHeader& h, const Bytes& file, const std::uint8_t* row, int x) {
    const auto bits = static_cast<std::size_t>(h.bitsPerPixel);
    const std::size_t bit = static_cast<std::size_t>(x) * bits;
    if (bits >= 24) return opaque(row + bit / 8);
    const std::size_t shift = 8 - bits - bit % 8;
    return paletteColour(h, file, (row[bit / 8] >> shift) & ((std::size_t{1} << bits) - 1));
}

void copyPixels(const BitmapHeader& h, const Bytes& file, Image& target) {
    for (int y = 0; y < std::min(h.height, target.height); ++y) {
        const int stored = h.topDown ? y : h.height - 1 - y;
        const std::uint8_t* row = file.data() + h.pixelOffset + rowSize(h) * static_cast<std::size_t>(stored);
        Colour* to = target.pixels.data() + static_cast<std::ptrdiff_t>(y) * target.width;
        for (int x = 0; x < std::min(h.width, target.width); ++x) to[x] = pixelOf(h, file, row, x);
    }
}

}  // namespace

bool decodeBitmap(const Bytes& file, Image& target) {
    const std::optional<BitmapHeader> header = headerOf(file);
    if (header) copyPixels(*header, file, target);
    return header.has_value();
}

void loadBitmap(const std::string& path, Image& target) {
    const bool found = decodeBitmap(fileContents(path).value_or(Bytes{}), target);
    if (found && &target == &screen()) frameChanged();
}

}  // namespace gloomdeck
