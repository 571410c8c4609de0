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

// What one drawing operation marks on a blank frame.
template <typename Draw, typename... Places>
Pixels drawn(Draw draw, Places... places) {
    clearScreen();
    draw(places..., ink);
    Pixels found;
    for (int y = 0; y < frameHeight; ++y)
        for (int x = 0; x < frameWidth; ++x)
            if (pixelAt(x, y) == ink) found.insert({x, y});
    return found;
}

}  // namespace

class DrawTest : public GameTest {};

TEST_F(DrawTest, BoxesIncludeBothCornersInWhateverOrderTheyCome) {
    const Pixels box = drawn(fillBox, 10, 20, 14, 22);
    EXPECT_EQ(box.size(), 15U);
    EXPECT_TRUE(box.contains({10, 20}) && box.contains({14, 22}));
    EXPECT_EQ(drawn(fillBox, 14, 20, 10, 22), box);
    EXPECT_EQ(drawn(fillBox, 7, 7, 7, 7), (Pixels{{7, 7}}));
    const Pixels frame = drawn(drawBox, 14, 20, 10, 23);
    EXPECT_EQ(frame.size(), 14U);
    EXPECT_FALSE(frame.contains({12, 21}));
}

TEST_F(DrawTest, BoxesAndLinesBeyondTheFrameAreCutAndThoseOutsideVanish) {
    EXPECT_EQ(drawn(fillBox, -50, -50, 3, 2).size(), 12U);
    EXPECT_EQ(drawn(fillBox, frameWidth - 2, frameHeight - 3, 100000, 100000).size(), 6U);
    EXPECT_TRUE(drawn(fillBox, 5, frameHeight, 9, frameHeight + 9).empty());
    EXPECT_EQ(drawn(drawBox, -5, -5, frameWidth, 3).size(), std::size_t{frameWidth});
    EXPECT_EQ(drawn(drawLine, -1000, -1000, 2000, 2000).size(), std::size_t{frameWidth});
    EXPECT_TRUE(drawn(drawLine, -10, 0, -1, 400).empty());
}

TEST_F(DrawTest, LinesRunFromEndToEndOnePixelAStep) {
    EXPECT_EQ(drawn(drawLine, 9, 4, 2, 4).size(), 8U);
    for (const Point end :
         {Point{100, 100}, Point{130, 107}, Point{70, 93}, Point{93, 160}, Point{107, 50}}) {
        const Pixels pixels = drawn(drawLine, 100, 100, end.x, end.y);
        const int longest = std::max(std::abs(end.x - 100), std::abs(end.y - 100));
        EXPECT_EQ(pixels.size(), static_cast<std::size_t>(longest) + 1);
        EXPECT_TRUE(pixels.contains({100, 100}) && pixels.contains({end.x, end.y}));
        for (const auto& [x, y] : pixels) {
            const int off = (x - 100) * (end.y - 100) - (y - 100) * (end.x - 100);
            EXPECT_LE(2 * std::abs(off), longest) << "half a pixel from the true line at most";
        }
    }
}

TEST_F(DrawTest, CirclesAreRoundAndSymmetric) {
    EXPECT_TRUE(drawn(drawCircle, 50, 50, -1).empty());
    EXPECT_EQ(drawn(drawCircle, 50, 50, 0), (Pixels{{50, 50}}));
    for (const int radius : {1, 2, 7, 23, 100}) {
        const Pixels pixels = drawn(drawCircle, 150, 150, radius);
        EXPECT_TRUE(pixels.contains({150 + radius, 150}) && pixels.contains({150, 150 - radius}));
        for (const auto& [x, y] : pixels) {
            EXPECT_NEAR(std::hypot(x - 150, y - 150), radius, 0.75);
            EXPECT_TRUE(pixels.contains({y, x}) && pixels.contains({300 - x, y}));
        }
    }
}

TEST_F(DrawTest, TextSetsOnlyTheGlyphsPixelsAndIsCutAtEveryEdge) {
    const auto written = [](int x, int y) {
        return drawn([=](Colour colour) { drawText(x, y, "W#g", colour); });
    };
    const Pixels whole = written(100, 100);
    EXPECT_TRUE(textStandsAt(100, 100, "W#g", ink));
    const auto cut = [&](int x, int y, const Rect& clip) {
        Pixels kept;
        for (const auto& [px, py] : whole)
            if (contains(clip, px - 100 + x, py - 100 + y)) kept.insert({px - 100 + x, py - 100 + y});
        return kept;
    };
    for (const Point at : {Point{-3, -2}, Point{-20, 5}, Point{395, 483}, Point{500, 10}, Point{10, -8}})
        EXPECT_EQ(written(at.x, at.y), cut(at.x, at.y, clipRect())) << at.x << ", " << at.y;
    const ClipTo clip{{103, 102, 112, 104}};
    EXPECT_EQ(written(100, 100), cut(100, 100, {103, 102, 112, 104}));
}

TEST(Font, GlyphsDifferAndLeaveTheLastColumnBlankForTheNextCharacter) {
    std::set<Glyph> different;
    for (char c = ' '; c <= '~'; ++c) {
        different.insert(glyphOf(c));
        for (const std::uint8_t row : glyphOf(c)) EXPECT_EQ(row & 1, 0) << c;
    }
    EXPECT_EQ(different.size(), 95U);
    EXPECT_EQ(glyphOf('L')[0] & 0x80, 0x80) << "bit 7 is the leftmost pixel";
    for (const char blank : {' ', '\x1F', '\x7F', '\xFF', '\0'}) EXPECT_EQ(glyphOf(blank), Glyph{});
}

}  // namespace gloomdeck
