// What holds for the pixels of every tile: colours, corners, transparency.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "art/eyesight.h"
#include "art/palette.h"
#include "art/picture_hash.h"
#include "tests/art/tiles_under_test.h"

namespace gloomdeck::art {
namespace {

bool isOpaque(int number) { return std::ranges::count(opaqueTiles, number) == 1; }

int paintedPixels(const Canvas& t) {
    int n = 0;
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) n += t.painted(x, y) ? 1 : 0;
    }
    return n;
}

TEST(Tiles, AllNumbersAreTakenOnceAndEveryPictureIsItsOwn) {
    std::set<int> numbers;
    std::map<std::uint64_t, int> seen;
    for (const Tile& t : allTiles()) {
        EXPECT_TRUE(numbers.insert(t.number).second) << t.number << " is painted by two functions";
        const auto [same, fresh] = seen.emplace(pictureHash(tile(t.number)), t.number);
        EXPECT_TRUE(fresh) << t.number << " looks like " << same->second;
        EXPECT_GT(paintedPixels(tile(t.number)), 0) << t.number;
    }
    EXPECT_EQ(numbers.size(), 63u);
}

TEST(Tiles, OnlyThoseThatFillTheirCellAreOpaque) {
    for (const auto& [number, t] : paintedTiles()) {
        EXPECT_EQ(paintedPixels(t) == 32 * 32, isOpaque(number)) << number;
        if (number == cover) continue;
        for (const auto& [x, y] : {Pixel{0, 0}, {31, 0}, {0, 31}, {31, 31}}) {
            const bool shadow = x == 31 && y == 31 && t.colour(x, y) == inkColour && !isOpaque(number);
            EXPECT_EQ(t.painted(x, y) && !shadow, isOpaque(number)) << number;
        }
    }
}

TEST(Tiles, HaveNoColourFromOutsideThePalette) {
    std::set<Colour> palette{inkColour, white};
    for (const Ramp& ramp : allRamps()) palette.insert(ramp.begin(), ramp.end());
    EXPECT_FALSE(palette.contains(keyColour));
    EXPECT_FALSE(palette.contains(0xFFFF00)) << "the interface's yellow is not for pictures";
    for (const auto& [letter, colour] : stampLetters()) EXPECT_TRUE(palette.contains(colour)) << letter;
    for (const auto& [number, t] : paintedTiles()) {
        std::set<Colour> strangers;
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x) {
                const bool known =
                    t.painted(x, y) ? palette.contains(t.colour(x, y)) : t.colour(x, y) == keyColour;
                if (!known) strangers.insert(t.colour(x, y));
            }
        }
        EXPECT_TRUE(strangers.empty()) << number << " has colours of its own";
    }
}

TEST(Tiles, KeepLightPixelsOffTheBorderSoThatTheOutlineCloses) {
    for (const auto& [number, t] : paintedTiles()) {
        if (isOpaque(number) || number == cover || number == 33) continue;
        int bare = 0;
        for (int i = 0; i < 32; ++i) {
            for (const auto& [x, y] : {Pixel{i, 0}, Pixel{i, 31}, Pixel{0, i}, Pixel{31, i}}) {
                bare += t.painted(x, y) && luma(t.colour(x, y)) > 45 ? 1 : 0;
            }
        }
        EXPECT_LE(bare, 4) << number;
    }
}

double meanLuma(const Canvas& t) {
    double sum = 0;
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) sum += luma(t.colour(x, y));
    }
    return sum / (32 * 32);
}

TEST(Tiles, TheCoverDimsACellAndShowsWhatIsUnderIt) {
    const auto plain = [](Colour c) { return c; };
    EXPECT_NEAR(paintedPixels(tile(cover)), .75 * 32 * 32, 51) << "captions can be read through half of it";
    for (const int ground : terrains) {
        const Canvas open = seenOver(tile(91), tile(ground), plain);
        const Canvas other = seenOver(tile(42), tile(ground), plain);
        const Canvas covered = seenOver(tile(cover), open, plain);
        EXPECT_LT(meanLuma(covered), .5 * meanLuma(open)) << ground;
        EXPECT_GT(squintDistance(squint(covered), squint(seenOver(tile(cover), other, plain))), 10) << ground;
    }
}

TEST(Tiles, TheDayStripIsDarkAndPlainUnderTheNumber) {
    for (const int number : {83, 84, 85, 86, 87, 88, 97, 98}) {
        std::set<Colour> band;
        for (int y = 19; y < 32; ++y) {
            for (int x = 0; x < 32; ++x) band.insert(tile(number).colour(x, y));
        }
        EXPECT_EQ(band.size(), 1u) << number;
        EXPECT_LT(luma(*band.begin()), 70) << number;
        EXPECT_GT(meanLuma(tile(number)), luma(*band.begin())) << number << " has no sky";
    }
}

TEST(Tiles, TerrainHasNoSeamWhereCellsMeet) {
    const auto step = [](const Canvas& t, int x0, int x1) {
        double sum = 0;
        for (int y = 0; y < 32; ++y) sum += std::abs(luma(t.colour(x0, y)) - luma(t.colour(x1, y)));
        return sum / 32;
    };
    for (const int ground : terrains) {
        double inner = 0;
        for (int x = 0; x < 31; ++x) inner = std::max(inner, step(tile(ground), x, x + 1));
        EXPECT_LE(step(tile(ground), 31, 0), inner + 1) << ground;
    }
}

}  // namespace
}  // namespace gloomdeck::art
