// Cutting the picture strips.
#include "shell/tile_set.h"

#include <filesystem>

#include "tests/support/game_test.h"

namespace gloomdeck {

class TileSetTest : public GameTest {};

TEST_F(TileSetTest, AMissingStripLeavesItsTilesTransparentAndTheLastTileIsBeyondTheStrip) {
    const std::string folder = makeProgramFolder();
    script::setFolder(folder);
    std::filesystem::remove(folder + "/gfx/dtiles2.bmp");
    loadTiles();
    const Image nothing = createImage(tile::size, tile::size);
    for (const int number : {1, 49, 99, 147})
        EXPECT_EQ(tileImage(number).pixels[16 * 33], flatColour(number));
    for (const int number : {50, 98, 148}) EXPECT_EQ(tileImage(number).pixels, nothing.pixels);
    EXPECT_TRUE(tileImage(149).pixels.empty());
}

}  // namespace gloomdeck
