// Bitmap files: every depth that is read, and files that lie.
#include "platform/bitmap.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace gloomdeck {

using Pixels = std::vector<Colour>;
using namespace std::string_literals;

namespace {

constexpr Colour c0 = 0xFF030201;
constexpr Colour c1 = 0xFF0D0C0B;
constexpr Colour c2 = 0xFF171615;
constexpr Colour c3 = 0xFF21201F;
const std::string fourColours = "\1\2\3\0\x0B\x0C\x0D\0\x15\x16\x17\0\x1F\x20\x21\0"s;

void poke(std::string& file, std::size_t at, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) file[at++] = static_cast<char>(value >> shift & 0xFF);
}

// A file of the plain kind; palette and rows (padded) as given.
std::string bitmap(std::uint32_t width, std::uint32_t height, std::uint32_t bits, const std::string& palette,
                   const std::string& rows) {
    std::string file = "BM" + std::string(52, '\0');
    poke(file, 10, static_cast<std::uint32_t>(file.size() + palette.size()));
    poke(file, 14, 40);
    poke(file, 18, width);
    poke(file, 22, height);
    poke(file, 26, 1 | bits << 16);
    return file + palette + rows;
}

const std::string rows24 = "\1\2\3\x0B\x0C\x0D\0\0\x15\x16\x17\x1F\x20\x21\0\0"s;
const std::string twoByTwo24 = bitmap(2, 2, 24, "", rows24);
const Pixels untouched(4, transparentColour);

// The pixels of a target of that size after the file was read into it.
Pixels read(const std::string& file, int width = 2, int height = 2) {
    const auto path =
        std::filesystem::temp_directory_path() / ("gloomdeck-" + std::to_string(getpid()) + ".bmp");
    std::ofstream(path, std::ios::binary) << file;
    Image target = createImage(width, height);
    loadBitmap(path, target);
    std::filesystem::remove(path);
    return target.pixels;
}

}  // namespace

TEST(Bitmap, RowsOfEveryDepthStandInEitherOrderOnTheTargetsTopLeft) {
    constexpr Colour none = transparentColour;
    EXPECT_EQ(read(twoByTwo24), (Pixels{c2, c3, c0, c1}));
    EXPECT_EQ(read(twoByTwo24, 1, 1), (Pixels{c2}));
    EXPECT_EQ(read(twoByTwo24, 3, 2), (Pixels{c2, c3, none, c0, c1, none}));
    EXPECT_EQ(read(bitmap(2, 0xFFFFFFFE, 24, "", rows24)), (Pixels{c0, c1, c2, c3}));
    EXPECT_EQ(read(bitmap(2, 1, 32, "", "\1\2\3\0\xFF\0\xFF\x80"s), 2, 1), (Pixels{c0, none}));
    EXPECT_EQ(read(bitmap(3, 1, 8, fourColours, "\3\1\2\0"s), 3, 1), (Pixels{c3, c1, c2}));
    EXPECT_EQ(read(bitmap(3, 1, 4, fourColours, "\x31\x20\0\0"s), 3, 1), (Pixels{c3, c1, c2}));
    EXPECT_EQ(read(bitmap(10, 1, 1, fourColours.substr(0, 8), "\x81\x40\0\0"s), 10, 1),
              (Pixels{c1, c0, c0, c0, c0, c0, c0, c1, c0, c1}));
    std::string longer = bitmap(2, 1, 8, std::string(68, '\x55') + fourColours + "gap", "\1\3\0\0"s);
    poke(longer, 14, 108);
    EXPECT_EQ(read(longer, 2, 1), (Pixels{c1, c3})) << "a longer header, a gap before the rows";
}

TEST(Bitmap, AFileCutShortAnywhereOrMissingChangesNothing) {
    for (const std::string& whole : {twoByTwo24, bitmap(2, 2, 8, fourColours, "\1\2\0\0\3\0\0\0"s)}) {
        ASSERT_NE(read(whole), untouched);
        for (std::size_t length = whole.size(); length-- > 0;)
            ASSERT_EQ(read(whole.substr(0, length)), untouched) << length << " of " << whole.size();
    }
    Image target = createImage(2, 2);
    for (const char* nothing : {"", "/", "/none.bmp"}) loadBitmap(nothing, target);
    EXPECT_EQ(target.pixels, untouched);
}

TEST(Bitmap, LyingHeadersChangeNothingAndLyingPalettesAreBlackBeyondTheirEnd) {
    constexpr std::uint32_t most = 0x7FFFFFFF;
    // clang-format off
    for (const auto& [at, lie] : {std::pair<std::size_t, std::uint32_t>
             { 0, 'X'},        {10, 20},   {10, 70},        {10, ~15U},      {14, 12},         {14, ~0U},
             {18, 0},          {18, ~1U},  {18, 16384},     {18, most},      {22, 0},          {22, most},
             {22, most + 1},   {26, 1},    {26, 2 | 24 << 16}, {26, 1 | 2 << 16}, {26, 1 | 16 << 16}, {30, 1}}) {
        // clang-format on
        std::string file = twoByTwo24;
        poke(file, at, lie);
        EXPECT_EQ(read(file), untouched) << lie << " at " << at;
    }
    std::string file = bitmap(2, 1, 8, fourColours, "\1\xC8\0\0"s);
    for (const std::uint32_t colours : {0xFFFFFFFFU, 0x40000000U, 0U, 1U}) {
        poke(file, 46, colours);
        EXPECT_EQ(read(file, 2, 1), (Pixels{colours == 1 ? 0xFF000000 : c1, 0xFF000000})) << colours;
    }
}

}  // namespace gloomdeck
