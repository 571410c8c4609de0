// Bitmap files: every depth that is read, and files that lie.
#include "platform/bitmap.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace gloomdeck {

namespace {

using Pixels = std::vector<Colour>;

void poke(std::string& file, std::size_t at, std::uint32_t value, int size = 4) {
    for (int i = 0; i < size; ++i)
        file[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * i) & 0xFF);
}

// A file of the plain kind; palette and rows (padded) as given.
std::string bitmap(int width, int height, int bits, const std::string& palette, const std::string& rows) {
    std::string file = "BM" + std::string(52, '\0');
    poke(file, 10, static_cast<std::uint32_t>(file.size() + palette.size()));
    poke(file, 14, 40);
    poke(file, 18, static_cast<std::uint32_t>(width));
    poke(file, 22, static_cast<std::uint32_t>(height));
    poke(file, 26, 1, 2);
    poke(file, 28, static_cast<std::uint32_t>(bits), 2);
    return file + palette + rows;
}

std::string bytes(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values) text.push_back(static_cast<char>(value));
    return text;
}

const std::string fourColours = bytes({1, 2, 3, 0, 11, 12, 13, 0, 21, 22, 23, 0, 31, 32, 33, 0});
const std::string twoByTwo24 =
    bitmap(2, 2, 24, "", bytes({1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0}));
const Pixels untouched(4, transparentColour);

}  // namespace

class BitmapTest : public ::testing::Test {
  protected:
    void TearDown() override { std::filesystem::remove(path); }

    // The pixels of a target of that size after the file was read into it.
    Pixels read(const std::string& file, int width = 2, int height = 2) const {
        std::ofstream(path, std::ios::binary) << file;
        Image target = createImage(width, height);
        loadBitmap(path, target);
        return target.pixels;
    }

    const std::string path =
        std::filesystem::temp_directory_path() / ("gloomdeck-" + std::to_string(getpid()) + ".bmp");
};

TEST_F(BitmapTest, RowsStandInEitherOrderOnTheTargetsTopLeft) {
    const Pixels expected{0xFF090807, 0xFF0C0B0A, 0xFF030201, 0xFF060504};
    EXPECT_EQ(read(twoByTwo24), expected);
    EXPECT_EQ(read(twoByTwo24, 1, 1), (Pixels{expected[0]}));
    EXPECT_EQ(read(twoByTwo24, 3, 2), (Pixels{expected[0], expected[1], transparentColour, expected[2],
                                              expected[3], transparentColour}));
    std::string topDown = twoByTwo24;
    poke(topDown, 22, static_cast<std::uint32_t>(-2));
    EXPECT_EQ(read(topDown), (Pixels{expected[2], expected[3], expected[0], expected[1]}));
}

TEST_F(BitmapTest, EveryDepthGivesOpaquePixels) {
    EXPECT_EQ(read(bitmap(2, 1, 32, "", bytes({1, 2, 3, 0, 0xFF, 0, 0xFF, 0x80})), 2, 1),
              (Pixels{0xFF030201, transparentColour}));
    const Pixels expected{0xFF21201F, 0xFF0D0C0B, 0xFF171615};
    EXPECT_EQ(read(bitmap(3, 1, 8, fourColours, bytes({3, 1, 2, 0})), 3, 1), expected);
    EXPECT_EQ(read(bitmap(3, 1, 4, fourColours, bytes({0x31, 0x20, 0, 0})), 3, 1), expected);
    const Pixels bits = read(bitmap(10, 1, 1, fourColours.substr(0, 8), bytes({0x81, 0x40, 0, 0})), 10, 1);
    for (std::size_t x = 0; x < bits.size(); ++x)
        EXPECT_EQ(bits[x], x == 0 || x == 7 || x == 9 ? 0xFF0D0C0B : 0xFF030201) << x;
    std::string longer = bitmap(2, 1, 8, std::string(68, '\x55') + fourColours + "gap", bytes({1, 3, 0, 0}));
    poke(longer, 14, 108);
    EXPECT_EQ(read(longer, 2, 1), (Pixels{0xFF0D0C0B, 0xFF21201F}))
        << "a longer header, a gap before the rows";
}

TEST_F(BitmapTest, AFileCutShortAnywhereOrMissingChangesNothing) {
    for (const std::string& whole :
         {twoByTwo24, bitmap(2, 2, 8, fourColours, bytes({1, 2, 0, 0, 3, 0, 0, 0}))}) {
        EXPECT_NE(read(whole), untouched);
        Image target = createImage(2, 2);
        for (std::size_t length = whole.size(); length-- > 0;) {
            std::filesystem::resize_file(path, length);
            loadBitmap(path, target);
            ASSERT_EQ(target.pixels, untouched) << length << " of " << whole.size();
        }
        for (const char* none : {"", "/", "/none.bmp"}) loadBitmap(none, target);
        EXPECT_EQ(target.pixels, untouched);
    }
}

TEST_F(BitmapTest, LyingHeadersChangeNothing) {
    struct Lie {
        std::size_t at;
        std::uint32_t value;
        int size = 4;
    };
    constexpr std::uint32_t most = 0x7FFFFFFF;
    for (const Lie& lie : {Lie{0, 'X', 1}, Lie{10, 0xFFFFFFF0}, Lie{10, 70}, Lie{10, 20}, Lie{14, 12},
                           Lie{14, 0xFFFFFFFF}, Lie{18, 0}, Lie{18, 0xFFFFFFFE}, Lie{18, most},
                           Lie{18, 16384}, Lie{22, 0}, Lie{22, most}, Lie{22, 0x80000000}, Lie{26, 2, 2},
                           Lie{28, 16, 2}, Lie{28, 0, 2}, Lie{28, 2, 2}, Lie{30, 1}, Lie{30, 3}}) {
        std::string file = twoByTwo24;
        poke(file, lie.at, lie.value, lie.size);
        EXPECT_EQ(read(file), untouched) << lie.value << " at " << lie.at;
    }
    std::string file = bitmap(2, 1, 8, fourColours, bytes({1, 200, 0, 0}));
    for (const std::uint32_t colours : {0xFFFFFFFFU, 0x40000000U, 0U, 1U}) {
        poke(file, 46, colours);
        EXPECT_EQ(read(file, 2, 1), (Pixels{colours == 1 ? 0xFF000000 : 0xFF0D0C0B, 0xFF000000})) << colours;
    }
}

}  // namespace gloomdeck
