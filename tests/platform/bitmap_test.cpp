// Bitmap files: every depth that is read, files that lie, and what is said of them.
#include "platform/bitmap.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

#include "platform/host_script.h"

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
    Image target = createImage(width, height);
    decodeBitmap({file.begin(), file.end()}, target);
    return target.pixels;
}

std::string_view faultOf(const std::string& file) {
    Image target = createImage(2, 2);
    return decodeBitmap({file.begin(), file.end()}, target);
}

// One pixel of 32 bits with masks, in a header of that size; the masks fill a short one up to 52 bytes.
std::string masked(std::uint32_t headerSize, const std::array<std::uint32_t, 3>& masks, std::uint32_t pixel) {
    const std::size_t gap = std::max(headerSize, 52U) - 40;
    std::string file = bitmap(1, 1, 32, std::string(gap, '\x55'), "\0\0\0\0"s);
    poke(file, 14, headerSize);
    poke(file, 30, 3);
    for (std::size_t i = 0; i < masks.size(); ++i) poke(file, 54 + 4 * i, masks[i]);
    poke(file, 54 + gap, pixel);
    return file;
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

TEST(Bitmap, MasksOfAnyWidthAndOrderTellTheColoursApart) {
    for (const std::uint32_t header : {40U, 52U, 56U, 108U, 124U}) {
        EXPECT_EQ(read(masked(header, {0xFF0000, 0xFF00, 0xFF}, 0x80123456), 1, 1), Pixels{0xFF123456});
        EXPECT_EQ(read(masked(header, {0xFF, 0xFF00, 0xFF0000}, 0x123456), 1, 1), Pixels{0xFF563412});
    }
    EXPECT_EQ(read(masked(56, {0xFF000000, 0xFF0000, 0xFF00}, 0x123456FF), 1, 1), Pixels{0xFF123456});
    EXPECT_EQ(read(masked(40, {0xF800, 0x07E0, 0x1F}, 0xFFFF8410), 1, 1), Pixels{0xFF848284});
    EXPECT_EQ(read(masked(108, {0x3FF00000, 0xFFC00, 1}, 0x3FF80001), 1, 1), Pixels{0xFFFF80FF});
    EXPECT_EQ(read(masked(40, {0xFFFFFFFC, 2, 1}, 0x80000002), 1, 1), Pixels{0xFF80FF00});
}

TEST(Bitmap, AFileCutShortAnywhereChangesNothing) {
    const std::string palette = bitmap(2, 2, 8, fourColours, "\1\2\0\0\3\0\0\0"s);
    for (const std::string& whole : {twoByTwo24, palette, masked(40, {4, 2, 1}, 7)}) {
        ASSERT_EQ(faultOf(whole), "");
        for (std::size_t length = whole.size(); length-- > 0;) {
            ASSERT_EQ(faultOf(whole.substr(0, length)), "is cut short; copy it here again") << length;
            ASSERT_EQ(read(whole.substr(0, length)), untouched) << length << " of " << whole.size();
        }
    }
}

TEST(Bitmap, APictureThatCannotBeReadIsNamedInOneLine) {
    const auto file =
        std::filesystem::temp_directory_path() / ("gloomdeck-" + std::to_string(getpid()) + ".bmp");
    const auto load = [](const std::string& path) {
        script::reset();
        Image target = createImage(2, 2);
        loadBitmap(path, target);
        return target.pixels;
    };
    std::ofstream(file) << twoByTwo24;
    EXPECT_EQ(load(file), (Pixels{c2, c3, c0, c1}));
    EXPECT_TRUE(script::warnings().empty());
    std::ofstream(file) << "\x89PNG";
    const std::string picture = "the picture " + file.string() + " ";
    EXPECT_EQ(load(file), untouched);
    EXPECT_EQ(script::warnings(), std::vector{picture + "is not a bitmap file; save it as one"});
    std::filesystem::remove(file);
    for (const std::string& nothing : {file.string(), ""s, "/"s}) EXPECT_EQ(load(nothing), untouched);
    EXPECT_EQ(script::warnings(), std::vector{"the picture / is missing; put it there again"s});
}

TEST(Bitmap, LyingHeadersAreToldAndChangeNothingAndLyingPalettesAreBlackBeyondTheirEnd) {
    struct Lie {
        const char* fault;
        std::size_t at;
        std::vector<std::uint32_t> values;
    };
    constexpr std::uint32_t most = 0x7FFFFFFF;
    for (const auto& [fault, at, values] : std::vector<Lie>{
             {"is not a bitmap", 0, {'X'}},
             {"has a damaged header", 10, {20}},
             {"is cut short", 10, {70, ~15U}},
             {"has a header of an old kind", 14, {12}},
             {"is cut short", 14, {57, ~0U}},
             {"is not 1 to 16384 pixels", 18, {0, ~1U, 16385, most}},
             {"is cut short", 18, {16384}},
             {"is not 1 to 16384 pixels", 22, {0, most, most + 1}},
             {"has not 1, 4, 8, 24 or 32 bits", 26, {1, 1 | 2 << 16, 1 | 16 << 16}},
             {"has a damaged header", 26, {2 | 24 << 16}},
             {"is run-length coded", 30, {1, 2}},
             {"is compressed in an unknown way", 30, {3, 4, ~0U}},
         })
        for (const std::uint32_t value : values) {
            std::string file = twoByTwo24;
            poke(file, at, value);
            EXPECT_TRUE(faultOf(file).starts_with(fault)) << value << " at " << at << ": " << faultOf(file);
            EXPECT_EQ(read(file), untouched) << value << " at " << at;
        }
    for (const auto& masks : std::vector<std::array<std::uint32_t, 3>>{
             {0xFF0000, 0xFF00, 0}, {0xFF0000, 0x5500, 0xFF}, {0xFF, 0xFF00, 0x1FF}, {~0U, ~0U, ~0U}})
        EXPECT_TRUE(faultOf(masked(40, masks, 0)).starts_with("has damaged colour masks")) << masks[2];
    std::string file = bitmap(2, 1, 8, fourColours, "\1\xC8\0\0"s);
    for (const std::uint32_t colours : {0xFFFFFFFFU, 0x40000000U, 0U, 1U}) {
        poke(file, 46, colours);
        EXPECT_EQ(read(file, 2, 1), (Pixels{colours == 1 ? 0xFF000000 : c1, 0xFF000000})) << colours;
    }
}

}  // namespace gloomdeck
