// Images: the three ways to put them, clipping, and cutting rectangles.
#include "platform/image.h"

#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/kernels.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr Colour ground = 0xFF102030;

// A picture whose every pixel tells its own place.
Image numbered(int width, int height) {
    Image image = createImage(width, height);
    for (std::size_t i = 0; i < image.pixels.size(); ++i)
        image.pixels[i] = 0xFF400000 | static_cast<Colour>(i);
    return image;
}

// True when a copying put changes just what lies inside the clip, to the picture's own pixels.
bool isPutInside(const Rect& clip, const Image& image, Point at) {
    std::vector<Colour> expected(screen().pixels.size(), ground);
    auto pixel = image.pixels.begin();
    for (int y = at.y; y < at.y + image.height; ++y)
        for (int x = at.x; x < at.x + image.width; ++x, ++pixel)
            if (contains(clip, x, y))
                expected[static_cast<std::size_t>(y) * frameWidth + static_cast<std::size_t>(x)] = *pixel;
    fillBox(0, 0, frameWidth, frameHeight, ground);
    setClip(clip.x2, clip.y2, clip.x1, clip.y1);
    putImage(at.x, at.y, image, putCopy);
    resetClip();
    return screen().pixels == expected;
}

}  // namespace

class ImageTest : public GameTest {};

TEST(Kernels, BlendingIsExactForEveryPairOfChannelsAndEveryAlpha) {
    std::array<Colour, 64> from{};  // a quarter of the values in each channel
    for (Colour i = 0; i < from.size(); ++i) from[i] = 0xC0804000 + i * 0x01010101;
    long wrong = 0;
    for (int alpha = 0; alpha < 256; ++alpha)
        for (int d = 0; d < 256; ++d) {
            std::array<Colour, 64> to{};
            to.fill(static_cast<Colour>(d) * 0x01010101);
            blendRow(to.data(), from.data(), 64, alpha);
            for (std::size_t i = 0; i < from.size(); ++i)
                for (int shift = 0; shift < 32; shift += 8) {
                    const int s = static_cast<int>(from[i] >> shift & 0xFF);
                    if (static_cast<int>(to[i] >> shift & 0xFF) != d + (s - d) * alpha / 256) ++wrong;
                }
        }
    EXPECT_EQ(wrong, 0);
}

TEST_F(ImageTest, TransparentPixelsAreSkippedWhateverTheirAlphaAndCopiedByCopy) {
    fillBox(0, 0, 50, 50, ground);
    Image image = createImage(4, 1);
    image.pixels = {transparentColour, 0x00FF00FF, 0x80FF00FF, 0xFFFF00FE};
    putImage(10, 10, image, putBlended(255));
    putImage(10, 10, image, putTransparent);
    for (int x = 10; x < 13; ++x) EXPECT_EQ(pixelAt(x, 10), ground);
    EXPECT_EQ(pixelAt(13, 10), 0xFFFF00FE);
    putImage(10, 10, image, putCopy);
    EXPECT_EQ(pixelAt(12, 10), 0x80FF00FF);
}

TEST_F(ImageTest, PutsAreCutAtEveryEdgeOfTheFrameAndTheClip) {
    const Image image = numbered(32, 32);
    const Rect whole{0, 0, frameWidth - 1, frameHeight - 1};
    for (const Point at :
         {Point{-31, 100}, Point{-32, 100}, Point{frameWidth - 1, 100}, Point{frameWidth, 100},
          Point{100, -31}, Point{100, -500}, Point{100, frameHeight - 1}, Point{100, 9999}})
        EXPECT_TRUE(isPutInside(whole, image, at)) << at.x << ", " << at.y;
    for (const Point at : {Point{40, 40}, Point{55, 60}, Point{61, 71}})
        EXPECT_TRUE(isPutInside({50, 45, 60, 70}, image, at)) << at.x << ", " << at.y;
}

TEST_F(ImageTest, AClipOutsideTheFrameLetsNothingThrough) {
    fillBox(0, 0, frameWidth, frameHeight, ground);
    setClip(frameWidth, 0, frameWidth + 50, 50);
    putImage(frameWidth - 4, 0, numbered(32, 32), putCopy);
    fillBox(-10, -10, 1000, 1000, 0xFFFFFFFF);
    drawText(frameWidth - 8, 0, "X", 0xFFFFFFFF);
    drawCircle(200, 200, 90, 0xFFFFFFFF);
    drawLine(0, 0, 407, 487, 0xFFFFFFFF);
    EXPECT_EQ(screen().pixels, std::vector<Colour>(screen().pixels.size(), ground));
}

TEST_F(ImageTest, CuttingTakesTheRectangleAndLeavesWhatLiesOutsideTheSource) {
    const Image source = numbered(8, 8);
    Image square = createImage(4, 4);
    getImage(source, 2, 3, 5, 6, square);
    EXPECT_EQ(square.pixels.front(), 0xFF400000 | (3 * 8 + 2));
    EXPECT_EQ(square.pixels.back(), 0xFF400000 | (6 * 8 + 5));
    Image beyond = createImage(4, 4);
    getImage(source, 6, 6, 9, 9, beyond);
    EXPECT_EQ(beyond.pixels[5], 0xFF400000 | (7 * 8 + 7));
    EXPECT_TRUE(beyond.pixels[2] == transparentColour && beyond.pixels[8] == transparentColour);
}

}  // namespace gloomdeck
