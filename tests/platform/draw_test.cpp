// Lines, boxes, circles and text on the frame, and the glyphs.
#include "platform/draw.h"

#include <cmath>
#include <set>

#include "platform/font.h"
#include "platform/frame.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr Colour ink = 0xFFABCDEF;

using Pixels = std::set<std::pair<int, int>>;

Pixels inked() {
    Pixels found;
    for (int y = 0; y < frameHeight; ++y)
        for (int x = 0; x < frameWidth; ++x)
            if (pixelAt(x, y) == ink) found.insert({x, y});
    return found;
}

// What one drawing operation marks on a blank frame.
template <typename Draw>
Pixels drawn(Draw draw) {
    clearScreen();
    draw();
    return inked();
}

Pixels filled(int x1, int y1, int x2, int y2) {
    return drawn([=] { fillBox(x1, y1, x2, y2, ink); });
}

Pixels line(int x1, int y1, int x2, int y2) {
    return drawn([=] { drawLine(x1, y1, x2, y2, ink); });
}

Pixels circle(int x, int y, int radius) {
    return drawn([=] { drawCircle(x, y, radius, ink); });
}

}  // namespace

class DrawTest : public GameTest {};

TEST_F(DrawTest, BoxesIncludeBothCornersInWhateverOrderTheyCome) {
    const Pixels box = filled(10, 20, 14, 22);
    EXPECT_EQ(box.size(), 15U);
    EXPECT_TRUE(box.contains({10, 20}) && box.contains({14, 22}));
    EXPECT_EQ(filled(14, 22, 10, 20), box);
    EXPECT_EQ(filled(14, 20, 10, 22), box);
    EXPECT_EQ(filled(7, 7, 7, 7), (Pixels{{7, 7}}));
    const Pixels frame = drawn([] { drawBox(14, 20, 10, 23, ink); });
    EXPECT_EQ(frame.size(), 14U);
    EXPECT_FALSE(frame.contains({12, 21}));
    EXPECT_EQ(drawn([] { drawBox(10, 23, 14, 20, ink); }), frame);
}

TEST_F(DrawTest, BoxesAndLinesBeyondTheFrameAreCutAndThoseOutsideVanish) {
    EXPECT_EQ(filled(-50, -50, 3, 2).size(), 12U);
    EXPECT_EQ(filled(frameWidth - 2, frameHeight - 3, 100000, 100000).size(), 6U);
    EXPECT_TRUE(filled(5, frameHeight, 9, frameHeight + 9).empty());
    EXPECT_TRUE(drawn([] { drawBox(-5, -5, frameWidth, frameHeight, ink); }).empty());
    EXPECT_EQ(drawn([] { drawBox(-5, -5, frameWidth, 3, ink); }).size(), std::size_t{frameWidth});
    EXPECT_EQ(line(-1000, -1000, 2000, 2000).size(), std::size_t{frameWidth});
    EXPECT_TRUE(line(-10, 0, -1, 400).empty());
}

TEST_F(DrawTest, LinesRunFromEndToEndOnePixelAStep) {
    EXPECT_EQ(line(9, 4, 2, 4).size(), 8U);
    EXPECT_EQ(line(3, 3, 3, 3), (Pixels{{3, 3}}));
    for (const Point end : {Point{130, 107}, Point{70, 93}, Point{93, 160}, Point{107, 50}}) {
        const Pixels pixels = line(100, 100, end.x, end.y);
        const int dx = std::abs(end.x - 100);
        const int dy = std::abs(end.y - 100);
        EXPECT_EQ(pixels.size(), static_cast<std::size_t>(std::max(dx, dy)) + 1);
        EXPECT_TRUE(pixels.contains({100, 100}) && pixels.contains({end.x, end.y}));
        for (const auto& [x, y] : pixels) {
            const int off = (x - 100) * (end.y - 100) - (y - 100) * (end.x - 100);
            EXPECT_LE(2 * std::abs(off), std::max(dx, dy)) << "half a pixel from the true line at most";
        }
    }
}

TEST_F(DrawTest, CirclesAreRoundAndSymmetric) {
    EXPECT_TRUE(circle(50, 50, -1).empty());
    EXPECT_EQ(circle(50, 50, 0), (Pixels{{50, 50}}));
    for (const int radius : {1, 2, 7, 23, 100}) {
        const Pixels pixels = circle(150, 150, radius);
        EXPECT_TRUE(pixels.contains({150 + radius, 150}) && pixels.contains({150, 150 - radius}));
        for (const auto& [x, y] : pixels) {
            EXPECT_NEAR(std::hypot(x - 150, y - 150), radius, 0.75);
            EXPECT_TRUE(pixels.contains({y, x}) && pixels.contains({300 - x, y}));
        }
    }
    EXPECT_FALSE(circle(0, 0, 30).empty());
}

TEST_F(DrawTest, TextSetsOnlyTheGlyphsPixelsEightToTheRight) {
    fillBox(0, 0, 100, 40, 0xFF112233);
    drawText(3, 5, "Ag~", ink);
    EXPECT_TRUE(textStandsAt(3, 5, "Ag~", ink));
    for (int y = 0; y <= 40; ++y)
        for (int x = 0; x <= 100; ++x)
            ASSERT_TRUE(pixelAt(x, y) == ink || pixelAt(x, y) == 0xFF112233) << x << ", " << y;
    setDefaultColours(0xFF00FF00, 0xFF000000);
    drawText(3, 25, "x");
    EXPECT_TRUE(textStandsAt(3, 25, "x", 0xFF00FF00));
}

TEST_F(DrawTest, TextIsCutAtTheFramesEdgesAndTheClips) {
    const Pixels whole = drawn([] { drawText(100, 100, "W#W", ink); });
    const auto cut = [&](int x, int y, const Rect& clip) {
        Pixels kept;
        for (const auto& [px, py] : whole)
            if (contains(clip, px - 100 + x, py - 100 + y)) kept.insert({px - 100 + x, py - 100 + y});
        return kept;
    };
    const Rect frame{0, 0, frameWidth - 1, frameHeight - 1};
    for (const Point at : {Point{-3, -2}, Point{-20, 5}, Point{395, 483}, Point{500, 10}, Point{10, -8}})
        EXPECT_EQ(drawn([=] { drawText(at.x, at.y, "W#W", ink); }), cut(at.x, at.y, frame));
    EXPECT_EQ(drawn([] {
                  const ClipTo clip{{103, 102, 112, 104}};
                  drawText(100, 100, "W#W", ink);
              }),
              cut(100, 100, {103, 102, 112, 104}));
}

TEST(Font, GlyphsDifferAndLeaveTheLastColumnBlankForTheNextCharacter) {
    std::set<Glyph> different;
    for (char c = ' '; c <= '~'; ++c) {
        different.insert(glyphOf(c));
        for (const std::uint8_t row : glyphOf(c)) EXPECT_EQ(row & 1, 0) << c;
    }
    EXPECT_EQ(different.size(), 95U);
    EXPECT_EQ(glyphOf(' '), Glyph{});
    EXPECT_EQ(glyphOf('L')[0] & 0x80, 0x80) << "bit 7 is the leftmost pixel";
    for (const char unknown : {'\x1F', '\x7F', '\xFF', '\0'}) EXPECT_EQ(glyphOf(unknown), Glyph{});
}

}  // namespace gloomdeck
