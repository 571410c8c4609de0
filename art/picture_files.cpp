// Bitmap files byte by byte, SVG as text.
#include "art/picture_files.h"

#include <cstdio>
#include <map>

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

// All runs of one colour in one path: each is a rectangle that starts where the last one did, moved.
struct Runs {
    Pixel last{0, 0};
    std::string path;
};

void append(Runs& runs, Pixel at, int n) {
    char text[64];
    std::snprintf(text, sizeof text, "m%d %dh%dv1h-%dz", at.x - runs.last.x, at.y - runs.last.y, n, n);
    runs.path += text;
    runs.last = at;
}

std::map<Colour, Runs> runsByColour(const Canvas& picture) {
    std::map<Colour, Runs> found;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0, n = 1; x < picture.width(); x += n) {
            n = picture.painted(x, y) ? runLength(picture, x, y) : 1;
            if (picture.painted(x, y)) append(found[picture.colour(x, y)], {x, y}, n);
        }
    }
    return found;
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
    for (const auto& [colour, runs] : runsByColour(picture)) {
        char fill[32];
        std::snprintf(fill, sizeof fill, R"(<path fill="#%06x" d=")", colour);
        out += fill + runs.path + "\"/>\n";
    }
    return out + "</svg>\n";
}

}  // namespace gloomdeck::art
