// Bitmap files byte by byte, SVG as text.
#include "art/picture_files.h"

#include <cstdio>

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

int runLength(const Canvas& picture, int x, int y) {
    int n = 1;
    while (x + n < picture.width() && picture.painted(x + n, y) &&
           picture.colour(x + n, y) == picture.colour(x, y)) {
        ++n;
    }
    return n;
}

std::string rectangle(int x, int y, int w, Colour c) {
    char text[96];
    std::snprintf(text, sizeof text, "<rect x=\"%d\" y=\"%d\" width=\"%d\" height=\"1\" fill=\"#%06x\"/>\n",
                  x, y, w, c);
    return text;
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

std::string svgFile(const Canvas& picture) {
    const std::string w = std::to_string(picture.width()), h = std::to_string(picture.height());
    std::string out = R"(<svg xmlns="http://www.w3.org/2000/svg" width=")" + w + R"(" height=")" + h +
                      R"(" viewBox="0 0 )" + w + " " + h + R"(" shape-rendering="crispEdges">)" + "\n";
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width();) {
            const int n = picture.painted(x, y) ? runLength(picture, x, y) : 1;
            if (picture.painted(x, y)) out += rectangle(x, y, n, picture.colour(x, y));
            x += n;
        }
    }
    return out + "</svg>\n";
}

}  // namespace gloomdeck::art
