// What a bitmap file says of itself, and whether it can be true.
#include "platform/bitmap_header.h"

#include <algorithm>
#include <bit>

namespace gloomdeck {

namespace {

constexpr int largestSide = 1 << 14;
constexpr std::size_t fileHeaderSize = 14;
constexpr std::size_t smallestInfoHeader = 40;
constexpr std::size_t headersSize = fileHeaderSize + smallestInfoHeader;
constexpr std::size_t masksEnd = headersSize + 12;  // they follow, inside a longer header or behind this one

constexpr std::string_view sound;
constexpr std::string_view notBitmap = "is not a bitmap file; save it as one";
constexpr std::string_view cutShort = "is cut short; copy it here again";
constexpr std::string_view oldHeader = "has a header of an old kind; save it as a bitmap of Windows";
constexpr std::string_view runLengthCoded = "is run-length coded; save it without compression";
constexpr std::string_view otherCompression = "is compressed in an unknown way; save it without compression";
constexpr std::string_view otherDepth = "has not 1, 4, 8, 24 or 32 bits a pixel; save it with 24";
constexpr std::string_view otherSize = "is not 1 to 16384 pixels wide and high; save it in its right size";
constexpr std::string_view damagedHeader = "has a damaged header; save it anew";
constexpr std::string_view damagedMasks = "has damaged colour masks; save it with 24 bits a pixel";

bool isKnownDepth(int bits) { return bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32; }

bool isKnownSide(int side) { return side >= 1 && side <= largestSide; }

std::string_view frontFault(const Bytes& file) {
    const bool named = file.empty() || (file[0] == 'B' && (file.size() == 1 || file[1] == 'M'));
    if (!named) return notBitmap;
    return file.size() < headersSize ? cutShort : sound;
}

// What the file states, true or not; of a height that is far too large no more than that.
BitmapHeader statedHeader(const Bytes& file) {
    const auto height = static_cast<std::int32_t>(little32(file, 22));
    return {.pixelOffset = little32(file, 10),
            .infoSize = little32(file, 14),
            .planes = little16(file, 26),
            .compression = static_cast<Compression>(little32(file, 30)),
            .width = static_cast<std::int32_t>(little32(file, 18)),
            .height = height < 0 ? -std::max(height, -largestSide - 1) : height,
            .bitsPerPixel = static_cast<int>(little16(file, 28)),
            .topDown = height < 0};
}

std::string_view kindFault(const BitmapHeader& h) {
    if (h.infoSize < smallestInfoHeader) return oldHeader;
    if (h.compression == Compression::runLengths8 || h.compression == Compression::runLengths4)
        return runLengthCoded;
    if (!isKnownDepth(h.bitsPerPixel)) return otherDepth;
    const bool known = h.compression == Compression::none || (hasMasks(h) && h.bitsPerPixel == 32);
    return known ? sound : otherCompression;
}

std::string_view sizeFault(const BitmapHeader& h, const Bytes& file) {
    if (!isKnownSide(h.width) || !isKnownSide(h.height)) return otherSize;
    if (h.planes != 1 || h.pixelOffset < (hasMasks(h) ? masksEnd : headersSize)) return damagedHeader;
    const std::size_t pixels = rowSize(h) * static_cast<std::size_t>(h.height);
    const bool whole = h.infoSize <= file.size() - fileHeaderSize && h.pixelOffset <= file.size() &&
                       pixels <= file.size() - h.pixelOffset;
    return whole ? sound : cutShort;
}

// Where the palette lies; its size is cut to the file, so that a lying count reads nothing outside.
void locatePalette(BitmapHeader& h, const Bytes& file) {
    const std::size_t most = std::size_t{1} << h.bitsPerPixel;
    const std::size_t stated = little32(file, 46);
    h.paletteOffset = fileHeaderSize + h.infoSize;
    const std::size_t fits = (file.size() - h.paletteOffset) / paletteEntrySize;
    h.paletteCount = std::min({stated == 0 ? most : stated, most, fits});
}

bool isOneRun(std::uint32_t mask) {
    if (mask == 0) return false;
    const std::uint32_t run = mask >> std::countr_zero(mask);
    return (run & (run + 1)) == 0;
}

std::string_view readMasks(BitmapHeader& h, const Bytes& file) {
    for (std::size_t i = 0; i < h.masks.size(); ++i) h.masks[i] = little32(file, headersSize + 4 * i);
    const auto [red, green, blue] = h.masks;
    const bool apart = (red & green) == 0 && ((red | green) & blue) == 0;
    return apart && std::all_of(h.masks.begin(), h.masks.end(), isOneRun) ? sound : damagedMasks;
}

}  // namespace

std::size_t rowSize(const BitmapHeader& header) {
    const auto bits = static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.bitsPerPixel);
    return (bits + 31) / 32 * 4;
}

std::string_view readBitmapHeader(const Bytes& file, BitmapHeader& header) {
    if (const auto fault = frontFault(file); !fault.empty()) return fault;
    header = statedHeader(file);
    if (const auto fault = kindFault(header); !fault.empty()) return fault;
    if (const auto fault = sizeFault(header, file); !fault.empty()) return fault;
    if (header.bitsPerPixel <= 8) locatePalette(header, file);
    return hasMasks(header) ? readMasks(header, file) : sound;
}

}  // namespace gloomdeck
