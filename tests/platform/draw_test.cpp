// Lines, boxes, circles, text and images on the frame, and where they are cut.
#include "platform/draw.h"

#include <cstdlib>
#include <map>
#include <utility>

#include "platform/font.h"
#include "platform/frame.h"
#include "platform/kernels.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr Colour ink = 0xFFABCDEF;

using Pixels = std::map<std::pair<int, int>, Colour>;

// What one drawing operation changes on a blank frame.
template <typename Draw, typename... Places>
Pixels drawn(Draw draw, Places... places) {
    clearScreen();
    const Colour blank = pixelAt(0, 0);
    draw(places..., ink);
    Pixels found;
    for (int y = 0; y < frameHeight; ++y)
        for (int x = 0; x < frameWidth; ++x)
            if (pixelAt(x, y) != blank) found[{x, y}] = pixelAt(x, y);
    return found;
}

void putNumbered(int x, int y, Colour /*ink*/) {
    Image image = createImage(24, 20);
    Colour next = 0;  // every pixel tells its own place
    for (Colour& pixel : image.pixels) pixel = next++;
    putImage(x, y, image, putCopy);
}

void write(int x, int y, Colour colour) { drawText(x, y, "W#g", colour); }

}  // namespace

class DrawTest : public GameTest {};

TEST_F(DrawTest, BoxesAndStraightLinesIncludeTheirEndsInWhateverOrderAndAreCutByTheFrame) {
    EXPECT_EQ(drawn(fillBox, 3, 9, 2, 8),
              (Pixels{{{2, 8}, ink}, {{2, 9}, ink}, {{3, 8}, ink}, {{3, 9}, ink}}));
    EXPECT_EQ(drawn(fillBox, -50, -50, 1, 0), (Pixels{{{0, 0}, ink}, {{1, 0}, ink}}));
    EXPECT_EQ(drawn(fillBox, 407, 486, 9999, 9999), (Pixels{{{407, 486}, ink}, {{407, 487}, ink}}));
    EXPECT_EQ(drawn(fillBox, 5, frameHeight, 9, frameHeight + 9), Pixels{});
    EXPECT_EQ(drawn(drawLine, 4, 4, 3, 4), (Pixels{{{3, 4}, ink}, {{4, 4}, ink}}));
    EXPECT_EQ(drawn(drawBox, 14, 20, 10, 23).size(), 14U);
    EXPECT_EQ(drawn(drawBox, -5, -5, frameWidth, 3).size(), std::size_t{frameWidth});
}

TEST_F(DrawTest, SlopedLinesKeepToTheTrueLine) {
    for (const Point by : {Point{30, 7}, Point{-30, -7}, Point{-7, 60}, Point{7, -50}}) {
        const Pixels pixels = drawn(drawLine, 100, 100, 100 + by.x, 100 + by.y);
        const int longest = std::max(std::abs(by.x), std::abs(by.y));
        EXPECT_EQ(pixels.size(), static_cast<std::size_t>(longest) + 1);
        EXPECT_TRUE(pixels.contains({100 + by.x, 100 + by.y}));
        for (const auto& [at, colour] : pixels)
            EXPECT_LE(2 * std::abs((at.first - 100) * by.y - (at.second - 100) * by.x), longest);
    }
    EXPECT_EQ(drawn(drawLine, -1000, -1000, 2000, 2000).size(), std::size_t{frameWidth});
    EXPECT_EQ(drawn(drawCircle, 50, 50, -1), Pixels{});
}

TEST_F(DrawTest, TextAndImagesAreCutAtEveryEdgeOfTheFrameAndTheClip) {
    for (const auto draw : {write, putNumbered}) {
        const Pixels whole = drawn(draw, 100, 100);
        ASSERT_TRUE(whole.size() == 480 || textStandsAt(100, 100, "W#g", ink));
        const auto expectCut = [&](int x, int y) {
            Pixels kept;
            for (const auto& [at, colour] : whole)
                if (contains(clipRect(), at.first - 100 + x, at.second - 100 + y))
                    kept[{at.first - 100 + x, at.second - 100 + y}] = colour;
            EXPECT_EQ(drawn(draw, x, y), kept) << x << ", " << y;
        };
        for (const int x : {-500, -24, -23, -3, 200, 395, 407, 408})
            for (const int y : {-20, -7, 200, 483, 487, 488, 9999}) expectCut(x, y);
        setClip(212, 204, 203, 202);
        EXPECT_EQ(clipRect(), (Rect{203, 202, 212, 204}));
        for (const int x : {185, 200, 212, 213}) expectCut(x, 199);
        setClip(frameWidth, 0, frameWidth + 50, 50);
        EXPECT_EQ(drawn(draw, frameWidth - 4, 0), Pixels{}) << "the clip lies outside the frame";
        for (const auto outside : {fillBox, drawLine}) EXPECT_EQ(drawn(outside, -9, -10, 999, 999), Pixels{});
        EXPECT_EQ(drawn(drawCircle, 350, 50, 90), Pixels{});
        resetClip();
    }
}

TEST_F(DrawTest, TransparentPixelsAreSkippedWhateverTheirAlphaAndCopiedByCopy) {
    Image image = createImage(3, 1);
    image.pixels = {0x00FF00FF, 0x80FF00FF, 0xFFFF00FE};
    const auto put = [&](PutMode mode) { return drawn([&](Colour) { putImage(0, 9, image, mode); }); };
    EXPECT_EQ(put(putTransparent), (Pixels{{{2, 9}, 0xFFFF00FE}}));
    EXPECT_EQ(put(putCopy), (Pixels{{{0, 9}, 0x00FF00FF}, {{1, 9}, 0x80FF00FF}, {{2, 9}, 0xFFFF00FE}}));
    const Pixels blended = put(putBlended(255));
    EXPECT_TRUE(blended.size() == 1 && blended.contains({2, 9}));
}

// A row of every s against one d, in the four channels in different orders, with a transparent pixel in it.
TEST(Kernels, BlendingIsExactForEveryPairOfChannelsAndEveryAlpha) {
    std::vector<Colour> from(257);
    std::vector<Colour> expected(257);
    for (const bool wide : {false, true}) {
        if (useWideRegisters(wide) != wide) continue;
        for (int alpha = 0; alpha < 256; ++alpha)
            for (int d = 0; d < 256; ++d) {
                const auto mixed = [=](int s) { return static_cast<Colour>(d + (s - d) * alpha / 256); };
                const Colour blank = static_cast<Colour>(d) * 0x01010101;
                for (int s = 0; s < 256; ++s) {
                    const auto at = static_cast<std::size_t>(s);
                    from[at] =
                        static_cast<Colour>(s) * 0x00010001 + static_cast<Colour>(s ^ 0x55) * 0x01000100;
                    expected[at] = mixed(s) * 0x00010001 + mixed(s ^ 0x55) * 0x01000100;
                }
                const auto key = static_cast<std::size_t>(d);
                from[256] = std::exchange(from[key], (transparentColour & 0x00FFFFFF) | blank << 24);
                expected[256] = std::exchange(expected[key], blank);
                std::vector<Colour> to(257, blank);
                blendRows({to.data(), 0, from.data(), 0, 257, 1}, alpha);
                ASSERT_EQ(to, expected) << d << " by " << alpha << (wide ? ", wide" : "");
            }
    }
}

TEST(Kernels, RowsOfAnyWidthAreDrawnOnceAndNothingBesideThem) {
    constexpr int step = 80;
    const std::vector<Colour> from(2 * step, 0xFF808080);
    for (const bool wide : {false, true})
        for (int width = 1; width < step && useWideRegisters(wide) == wide; ++width) {
            std::vector<Colour> once(2 * step, 0);
            std::vector<Colour> expected(2 * step, 0);
            for (const int start : {0, step}) std::fill_n(expected.begin() + start, width, 0x7F404040);
            blendRows({once.data(), step, from.data(), step, width, 2}, 128);
            EXPECT_EQ(once, expected) << width;
            copyRowsTransparent({once.data(), step, from.data(), step, width, 2});
            for (const int start : {0, step}) std::fill_n(expected.begin() + start, width, 0xFF808080);
            EXPECT_EQ(once, expected) << width;
            fillRows(once.data(), step, width, 2, ink);
            for (const int start : {0, step}) std::fill_n(expected.begin() + start, width, ink);
            EXPECT_EQ(once, expected) << width;
        }
    useWideRegisters(true);
}

}  // namespace gloomdeck
