// Bitmap files, byte by byte.
#include "art/bitmap.h"

#include "art/tiles.h"

namespace gloomdeck::art {
namespace {

constexpr unsigned headerSize = 54, infoSize = 40, pixelsPerMetre = 2835;

void little(std::string& out, unsigned value, int bytes) {
    for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> (8 * i) & 255);
}

void header(std::string& out, unsigned w, unsigned h, unsigned pixelBytes) {
    out += "BM";
    little(out, headerSize + pixelBytes, 4);
    little(out, 0, 4);
    little(out, headerSize, 4);
    little(out, infoSize, 4);
    little(out, w, 4);
    little(out, h, 4);
    little(out, 1, 2);   // planes
    little(out, 24, 2);  // bits
    little(out, 0, 4);   // not compressed
    little(out, pixelBytes, 4);
    little(out, pixelsPerMetre, 4);
    little(out, pixelsPerMetre, 4);
    little(out, 0, 4);  // no colour table
    little(out, 0, 4);
}

}  // namespace

std::string bitmapFile(const Canvas& picture) {
    const int w = picture.width(), h = picture.height(), padding = (4 - w * 3 % 4) % 4;
    std::string out;
    header(out, static_cast<unsigned>(w), static_cast<unsigned>(h),
           static_cast<unsigned>((w * 3 + padding) * h));
    for (int y = h - 1; y >= 0; --y) {
        for (int x = 0; x < w; ++x) little(out, picture.colour(x, y), 3);
        out.append(static_cast<std::size_t>(padding), '\0');
    }
    return out;
}

Canvas tileStrip(int first, int last) {
    Canvas strip((last - first + 1) * 32, 32);
    for (const Tile& tile : allTiles()) {
        if (tile.number >= first && tile.number <= last) {
            strip.lay(tile.paint(), (tile.number - first) * 32, 0);
        }
    }
    return strip;
}

}  // namespace gloomdeck::art
