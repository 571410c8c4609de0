// The files that are baked from the pictures.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "art/icon.h"
#include "art/picture_files.h"
#include "art/picture_hash.h"
#include "tests/art/tiles_under_test.h"

namespace gloomdeck::art {
namespace {

// "name hash" lines as a table.
std::map<std::string, std::string> parsed(std::istream& in) {
    std::map<std::string, std::string> table;
    for (std::string name, hash; in >> name >> hash;) table[name] = hash;
    return table;
}

TEST(PictureHashes, AreTheOnesOnRecord) {
    std::ifstream file(GLOOMDECK_ART_HASHES);
    const auto recorded = parsed(file);
    std::stringstream now;
    for (const std::string& line : hashLines()) now << line << "\n";
    const auto painted = parsed(now);
    std::string changed;
    for (const auto& [name, hash] : painted) {
        if (!recorded.contains(name) || recorded.at(name) != hash) changed += " " + name;
    }
    for (const auto& [name, hash] : recorded) {
        if (!painted.contains(name)) changed += " " + name;
    }
    EXPECT_EQ(changed, "") << "look at these pictures; where the change is wanted, record artbake --hashes";
}

unsigned little(const std::string& file, std::size_t at, std::size_t bytes) {
    unsigned value = 0;
    for (std::size_t i = bytes; i > 0; --i)
        value = value << 8 | static_cast<std::uint8_t>(file.at(at + i - 1));
    return value;
}

// A pixel of a bottom-up 24-bit bitmap file.
Colour pixel(const std::string& file, unsigned x, unsigned y) {
    const unsigned w = little(file, 18, 4), h = little(file, 22, 4), row = (w * 3 + 3) / 4 * 4;
    return little(file, little(file, 10, 4) + (h - 1 - y) * row + x * 3, 3);
}

TEST(Bitmaps, HoldEveryPixelWhateverTheWidth) {
    Canvas odd(5, 3);
    odd.set(0, 0, 0x112233);
    odd.set(4, 2, 0x445566);
    const std::string file = bitmapFile(odd);
    EXPECT_EQ(file.substr(0, 2), "BM");
    EXPECT_EQ(little(file, 2, 4), file.size());
    EXPECT_EQ(file.size(), 54u + 16 * 3);
    EXPECT_EQ(little(file, 28, 2), 24u);
    EXPECT_EQ(pixel(file, 0, 0), 0x112233u);
    EXPECT_EQ(pixel(file, 4, 2), 0x445566u);
    EXPECT_EQ(pixel(file, 2, 1), keyColour);
}

TEST(Bitmaps, StripsPutATileInItsPlaceAndLeaveTheRestUnused) {
    const Canvas strip = tileStrip(50, 98);
    ASSERT_EQ(strip.width(), 1568);
    ASSERT_EQ(strip.height(), 32);
    for (const int number : {50, 71, 98}) {
        for (int i = 0; i < 32; ++i) {
            EXPECT_EQ(strip.colour((number - 50) * 32 + i, i), tile(number).colour(i, i)) << number;
        }
    }
    for (int i = 0; i < 32; ++i) EXPECT_FALSE(strip.painted((51 - 50) * 32 + i, i));
    EXPECT_EQ(tileStrip(99, 148).width(), 1600);
}

TEST(Icons, AreCentredAndLeaveTheGroundBare) {
    for (const int size : iconSizes) {
        const Canvas icon = paintIcon(size);
        ASSERT_EQ(icon.width(), size);
        for (const int y : {0, size - 1}) {
            for (const int x : {0, size - 1}) EXPECT_FALSE(icon.painted(x, y)) << size;
        }
        EXPECT_TRUE(icon.painted(size / 2, size / 2)) << size;
    }
}

// Draws the rectangles of one path: each starts where the last one did, moved, and is one pixel high.
void draw(Canvas& t, const std::string& path, Colour colour) {
    std::istringstream in(path);
    char m, h, v, back, z;
    int x = 0, y = 0;
    for (int dx, dy, n, tall, left; in >> m >> dx >> dy >> h >> n >> v >> tall >> back >> left >> z;) {
        EXPECT_EQ((std::string{m, h, v, back, z}), "mhvhz");
        EXPECT_EQ(std::pair(tall, left), std::pair(1, -n));
        x += dx;
        y += dy;
        for (int i = 0; i < n; ++i) t.set(x + i, y, colour);
    }
}

TEST(Svg, PathsCoverExactlyThePaintedPixels) {
    const Canvas icon = paintIcon(48);
    std::istringstream file(svgFile(icon));
    Canvas t(icon.width(), icon.height());
    const std::string before = "<path fill=\"#", between = "\" d=\"";
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with(before)) continue;
        const std::string colour = line.substr(before.size(), 6);
        EXPECT_EQ(line.substr(before.size() + 6, between.size()), between);
        draw(t, line.substr(before.size() + 6 + between.size()),
             static_cast<Colour>(std::stoul(colour, nullptr, 16)));
    }
    EXPECT_EQ(pictureHash(t), pictureHash(icon));
}

}  // namespace
}  // namespace gloomdeck::art
