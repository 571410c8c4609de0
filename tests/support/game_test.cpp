#include "tests/support/game_test.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "art/picture_files.h"
#include "platform/draw.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "shell/play_screen.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/tile_set.h"
#include "tests/support/reset.h"

namespace gloomdeck {

namespace {

Colour flatPixel(int number, int x, int y) {
    static const std::set<int> opaque{tile::cellar, tile::ruins,        tile::portal,
                                      tile::marble, tile::pictureFrame, tile::masonry};
    const bool corner = (x < 2 || x > 29) && (y < 2 || y > 29);
    return corner && !opaque.contains(number) ? transparentColour : flatColour(number);
}

std::string strip(int firstTile, int tiles) {
    art::Canvas picture(tiles * tile::size, tile::size);
    for (int x = 0; x < picture.width(); ++x)
        for (int y = 0; y < tile::size; ++y)
            picture.set(x, y, flatPixel(firstTile + x / tile::size, x % tile::size, y));
    return art::bitmapFile(picture);
}

// The title stays unpainted: it is magenta all over.
void writePictures(const std::string& folder) {
    std::filesystem::create_directories(folder);
    std::ofstream(folder + "/dtiles.bmp", std::ios::binary) << strip(1, 49);
    std::ofstream(folder + "/dtiles2.bmp", std::ios::binary) << strip(50, 49);
    std::ofstream(folder + "/dtiles3.bmp", std::ios::binary) << strip(99, 50);
    const art::Canvas title(frameWidth, frameHeight);
    std::ofstream(folder + "/dtitle.bmp", std::ios::binary) << art::bitmapFile(title);
}

std::string programFolder() {
    return (std::filesystem::temp_directory_path() / "a \\ and gloomd\u00E9ck-").string() +
           std::to_string(getpid());
}

}  // namespace

Colour flatColour(int tileNumber) {
    const auto n = static_cast<Colour>(tileNumber);
    return 0xFF000000 | (40 + n) << 16 | (n * 37 % 200 + 20) << 8 | (n * 91 % 180 + 10);
}

std::string makeProgramFolder(bool withPictures) {
    removeProgramFolders();
    std::filesystem::create_directories(programFolder() + "/Data");
    if (withPictures) writePictures(programFolder() + "/gfx");
    return programFolder();
}

void removeProgramFolders() { std::filesystem::remove_all(programFolder()); }

void resetProgram() {
    forgetProgram();
    forgetRolls();
}

void GameTest::SetUp() {
    static const auto flatTiles = [] {  // loaded once for all tests
        script::setFolder(makeProgramFolder());
        loadTiles();
        return tileImages;
    }();
    resetProgram();
    RulesTest::SetUp();
    openWindow(frameWidth, frameHeight);
    setDefaultColours(colour::text, colour::panel);
    tileImages = flatTiles;
    cellBackup = createImage(tile::size, tile::size);
    enterScreen(playScreen);
}

void GameTest::TearDown() {
    RulesTest::TearDown();
    EXPECT_EQ(ui.lockDepth, 0) << "the screen is still locked";
    resetProgram();
    removeProgramFolders();
}

Colour pixelAt(int x, int y) {
    const int index = y * screen().width + x;
    return screen().pixels.at(static_cast<std::size_t>(index));
}

bool textStandsAt(int x, int y, std::string_view text, Colour ink) {
    for (std::size_t i = 0; i < text.size(); ++i)
        for (int dy = 0; dy < glyphSize; ++dy)
            for (int dx = 0; dx < glyphSize; ++dx) {
                const bool inked = (glyphOf(text[i])[static_cast<std::size_t>(dy)] >> (7 - dx) & 1) != 0;
                if ((pixelAt(x + glyphSize * static_cast<int>(i) + dx, y + dy) == ink) != inked) return false;
            }
    return true;
}

}  // namespace gloomdeck
