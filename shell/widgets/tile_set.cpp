// The strips, cut into squares.
#include "shell/widgets/tile_set.h"

#include <algorithm>

#include "platform/bitmap.h"
#include "platform/files.h"

namespace gloomdeck {

std::array<Image, tileCount> tileImages;
Image cellBackup;

namespace {

constexpr int stripWidth = 1568;

struct Strip {
    const char* file;
    int firstTile;
    int tiles;
};

constexpr std::array strips{Strip{"dtiles.bmp", 1, 49}, Strip{"dtiles2.bmp", 50, 49},
                            Strip{"dtiles3.bmp", 99, 50}};

void cutStrip(const Strip& strip, Image& work) {
    std::fill(work.pixels.begin(), work.pixels.end(), transparentColour);
    loadBitmap(pictureFolder() + strip.file, work);
    for (int i = 0; i < strip.tiles; ++i) {
        const int number = strip.firstTile + i;
        Image& image = tileImages[static_cast<std::size_t>(number - 1)];
        image = createImage(tile::size, tile::size);
        const int left = tile::size * i;
        getImage(work, left, 0, left + tile::size - 1, tile::size - 1, image);
    }
}

}  // namespace

const Image& tileImage(int number) {
    static const Image nothing;
    if (number < 1 || number > tileCount) return nothing;
    return tileImages[static_cast<std::size_t>(number - 1)];
}

void putTile(int number, int x, int y, PutMode mode) { putImage(x, y, tileImage(number), mode); }

void loadTiles() {
    Image work = createImage(stripWidth, tile::size);
    for (const Strip& strip : strips) cutStrip(strip, work);
    destroyImage(work);
    cellBackup = createImage(tile::size, tile::size);
}

void freeTiles() {
    for (Image& image : tileImages) destroyImage(image);
    destroyImage(cellBackup);
}

std::string pictureFolder() { return programFolder() + "\\gfx\\"; }

}  // namespace gloomdeck
