// How the frame fits the window.
#include "platform/scaling.h"

#include <gtest/gtest.h>

#include <vector>

namespace gloomdeck {

namespace {

using Pixels = std::vector<Colour>;

constexpr Extent frame{408, 488};

// An area of zeros after those rows of a picture were drawn into it; just the expected place may be reported.
Pixels drawn(Extent size, const Pixels& pixels, Rows rows, Extent area, const Rect& expected) {
    Pixels target(static_cast<std::size_t>(area.width * area.height), 0);
    const Rect fit = fitFrame(size, area);
    EXPECT_EQ(drawFitted(size, pixels.data(), rows, fit, target.data(), area.width), expected);
    return target;
}

}  // namespace

TEST(Scaling, WindowsOpenLargeOnLargeDisplaysOnly) {
    // clang-format off
    for (const auto& [usable, desktop, scale] : {std::tuple{Extent{2560, 1354}, 1.0, 1}, {{2560, 1355}, 1.0, 2},
             {{1087, 4000}, 1.0, 1}, {{1088, 4000}, 1.0, 2}, {{1920, 1080}, 1.49, 1}, {{1920, 1015}, 1.5, 1},
             {{1920, 1016}, 1.5, 2}, {{815, 4000}, 2.0, 1},  {{816, 4000}, 2.0, 2},   {{2448, 2195}, 1.0, 2},
             {{2448, 2196}, 1.0, 3}, {{640, 400}, 1.0, 1},   {{20000, 20000}, 2.0, 4}})
        EXPECT_EQ(openingScale(usable, desktop), scale) << usable.width << " x " << usable.height;
    // clang-format on
}

TEST(Scaling, PicturesAreCentredWholeMultiplesOrTheWholeFrameShrunkInItsShape) {
    // clang-format off
    for (const auto& [area, fit] : {std::pair<Extent, Rect>
             {{ 815, 9999}, {203, 4755,  610, 5242}},
             {{ 900, 1000}, { 42,   12,  857,  987}},
             {{ 407,  488}, {  0,    1,  406,  486}},
             {{ 900,  244}, {348,    0,  551,  243}},
             {{   3,  900}, {  0,  448,    2,  450}},
             {{   1,    1}, {  0,    0,    0,    0}}})
        // clang-format on
        EXPECT_EQ(fitFrame(frame, area), fit) << area.width << " x " << area.height;
}

TEST(Scaling, PlacesMapBackToTheFramesPixelsAndNoFurther) {
    const Rect twice{42, 12, 857, 987};
    for (const Point at : {Point{42, 12}, Point{43, 13}})
        EXPECT_EQ(framePixelAt(frame, twice, at.x, at.y), (Point{0, 0}));
    EXPECT_EQ(framePixelAt(frame, twice, 857, 987), (Point{407, 487}));
    for (const Point out : {Point{41, 12}, Point{42, 11}, Point{858, 987}, Point{857, 988}})
        EXPECT_FALSE(framePixelAt(frame, twice, out.x, out.y)) << out.x << ", " << out.y;
    EXPECT_EQ(framePixelAt(frame, {0, 61, 299, 418}, 299, 418), (Point{406, 486}));
}

TEST(Scaling, EnlargedRowsAreHardBlocks) {
    const Pixels pixels{1, 2, 3, 4};
    for (const int scale : {1, 2, 3, 4, 5})
        for (const int border : {0, 1}) {
            const int width = 2 * scale + 2 * border;
            Pixels expected;
            for (int y = 0; y < 2 * scale; ++y)
                for (int x = -border; x < 2 * scale + border; ++x) {
                    const bool isDrawn = y >= scale && x >= 0 && x < 2 * scale;
                    expected.push_back(!isDrawn ? 0 : x < scale ? 3 : 4);
                }
            const Rect lowerRow{border, scale, border + 2 * scale - 1, 2 * scale - 1};
            EXPECT_EQ(drawn({2, 2}, pixels, {1, 1}, {width, 2 * scale}, lowerRow), expected) << scale;
        }
}

TEST(Scaling, ShrunkPicturesAverageEveryPixel) {
    const Pixels mixed{0xFF000000, 0xFF0000FF, 0xFF800000, 0xFF008000,
                       0xFF0000FF, 0xFF000000, 0xFF800000, 0xFF008000};
    EXPECT_EQ(drawn({4, 2}, mixed, {1, 1}, {2, 3}, {0, 1, 1, 1}),
              (Pixels{0, 0, 0xFF00007F, 0xFF404000, 0, 0}));
    EXPECT_EQ(drawn({6, 3}, Pixels(18, 0xFF102030), {0, 0}, {2, 1}, {0, 0, 1, 0}), Pixels(2, 0xFF102030));
}

}  // namespace gloomdeck
