#include "tests/support/game_test.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <vector>

#include "platform/clock.h"
#include "platform/draw.h"
#include "platform/font.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "prefs/saved_data.h"
#include "shell/layout.h"
#include "shell/lifecycle.h"
#include "shell/mouse.h"
#include "shell/palette.h"
#include "shell/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int dungeon = 3;
std::vector<std::string> folders;

bool isTerrain(int number) {
    constexpr std::array terrain{tile::cellar, tile::ruins,        tile::portal,
                                 tile::marble, tile::pictureFrame, tile::masonry};
    return std::find(terrain.begin(), terrain.end(), number) != terrain.end();
}

std::size_t pixelIndex(int x, int y, int width) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
}

Colour flatPixel(int number, int x, int y) {
    const bool corner = (x < 2 || x > 29) && (y < 2 || y > 29);
    return corner && !isTerrain(number) ? transparentColour : flatColour(number);
}

std::array<Image, tile::count> paintedFlatTiles() {
    std::array<Image, tile::count> images;
    for (int number = 1; number <= tile::count; ++number) {
        Image& image = images[static_cast<std::size_t>(number - 1)];
        image = createImage(tile::size, tile::size);
        for (int y = 0; y < tile::size; ++y)
            for (int x = 0; x < tile::size; ++x)
                image.pixels[pixelIndex(x, y, tile::size)] = flatPixel(number, x, y);
    }
    return images;
}

void append(std::string& bytes, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

// A 24-bit bitmap, rows bottom up; every width here is a multiple of four.
template <typename PixelAt>
std::string bitmap(int width, int height, PixelAt at) {
    std::string bytes = "BM";
    const auto size = static_cast<std::uint32_t>(54 + 3 * width * height);
    bytes.reserve(size);
    for (const std::uint32_t value :
         {size, 0U, 54U, 40U, static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height),
          1U | 24U << 16, 0U, size - 54, 0U, 0U, 0U, 0U})
        append(bytes, value, 4);
    for (int y = height - 1; y >= 0; --y)
        for (int x = 0; x < width; ++x) append(bytes, at(x, y) & 0xFFFFFF, 3);
    return bytes;
}

std::string flatStrip(int firstTile, int tiles) {
    return bitmap(tiles * tile::size, tile::size,
                  [=](int x, int y) { return flatPixel(firstTile + x / tile::size, x % tile::size, y); });
}

struct PictureFile {
    const char* name;
    std::string bytes;
};

// Made once: every test of the whole program writes them.
const std::array<PictureFile, 4>& flatPictures() {
    static const std::array<PictureFile, 4> files{{
        {"dtiles.bmp", flatStrip(1, 49)},
        {"dtiles2.bmp", flatStrip(50, 49)},
        {"dtiles3.bmp", flatStrip(99, 50)},
        {"dtitle.bmp", bitmap(frameWidth, frameHeight, [](int, int) { return 0x102030U; })},
    }};
    return files;
}

}  // namespace

Colour flatColour(int tileNumber) {
    const auto n = static_cast<Colour>(tileNumber);
    return 0xFF000000 | (40 + n) << 16 | (n * 37 % 200 + 20) << 8 | (n * 91 % 180 + 10);
}

void makeFlatTiles() {
    static const auto flat = paintedFlatTiles();  // painted once for all tests
    tileImages = flat;
    cellBackup = createImage(tile::size, tile::size);
}

void writeFlatPictures(const std::string& folder) {
    std::filesystem::create_directories(folder + "/gfx");
    for (const PictureFile& file : flatPictures())
        std::ofstream(folder + "/gfx/" + file.name, std::ios::binary) << file.bytes;
}

std::string makeProgramFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "gloomdeck-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    std::filesystem::create_directories(name + "/Data");
    writeFlatPictures(name);
    folders.push_back(name);
    return name;
}

void removeProgramFolders() {
    for (const std::string& folder : folders) std::filesystem::remove_all(folder);
    folders.clear();
}

void resetProgram() {
    script::reset();
    resetInput();
    resetClock();
    resetFrame();
    resetCatalogue();
    resetRolls();
    resetLifecycle();
    forgetSafePoint();
    game = {};
    prefs = {};
    ui = {};
    restartPress();
    clickedButton = -1;
    clearMessages();
    layOutWidgets();
}

void makeEmptyBoard() {
    for (int col = 0; col < columnCount; ++col) {
        column(col) = {};
        column(col).location = dungeon;
        for (int row = 0; row < rowCount; ++row) cell(col, row) = enc::Empty;
    }
    game.campaign = none;
}

void GameTest::SetUp() {
    resetProgram();
    openWindow(frameWidth, frameHeight);
    setDefaultColours(colour::text, colour::panel);
    makeFlatTiles();
    makeEmptyBoard();
    prefs.GameSpeed = speedCount - 1;
    prefs.currentScreen = screen_id::play;
    rolls({});
}

void GameTest::TearDown() {
    EXPECT_EQ(leftoverRolls(), 0) << "fed rolls that nobody drew";
    EXPECT_EQ(missingRolls(), 0) << "draws beyond the fed rolls";
    EXPECT_EQ(ui.lockDepth, 0) << "the screen is still locked";
    resetProgram();
    removeProgramFolders();
}

Colour pixelAt(int x, int y) { return screen().pixels[pixelIndex(x, y, screen().width)]; }

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
