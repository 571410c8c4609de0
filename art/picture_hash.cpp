// Fingerprints of all pictures.
#include "art/picture_hash.h"

#include <cstdio>

#include "art/icon.h"
#include "art/tiles.h"
#include "art/title.h"

namespace gloomdeck::art {

std::uint64_t pictureHash(const Canvas& t) {
    std::uint64_t h = 0xCBF29CE484222325u;
    for (int y = 0; y < t.height(); ++y) {
        for (int x = 0; x < t.width(); ++x) {
            for (const int bits : {16, 8, 0}) h = (h ^ (t.colour(x, y) >> bits & 255)) * 0x100000001B3u;
        }
    }
    return h;
}

namespace {

std::string hashLine(const std::string& name, const Canvas& picture) {
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(pictureHash(picture)));
    return name + " " + digits;
}

}  // namespace

std::vector<std::string> hashLines() {
    std::vector<std::string> lines;
    for (const Tile& tile : allTiles()) lines.push_back(hashLine(std::to_string(tile.number), tile.paint()));
    lines.push_back(hashLine("title", paintTitle()));
    for (const int size : iconSizes) {
        lines.push_back(hashLine("icon" + std::to_string(size), paintIcon(size)));
    }
    return lines;
}

}  // namespace gloomdeck::art
