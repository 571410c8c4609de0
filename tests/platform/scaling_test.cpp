#include "platform/scaling.h"

#include <gtest/gtest.h>

#include <vector>

namespace gloomdeck {

namespace {

constexpr Extent frame{408, 488};
constexpr Colour untouched = 0x12345678;

int widthOf(const Rect& r) { return r.x2 - r.x1 + 1; }
int heightOf(const Rect& r) { return r.y2 - r.y1 + 1; }

struct Area {
    explicit Area(Extent extent)
        : size(extent), pixels(static_cast<std::size_t>(extent.width * extent.height), untouched) {}
    Colour at(int x, int y) const { return pixels.at(static_cast<unsigned>(y * size.width + x)); }
    Extent size;
    std::vector<Colour> pixels;
};

TEST(Scaling, WindowsOpenLargeOnLargeDisplaysOnly) {
    EXPECT_EQ(openingScale({640, 400}), 1);
    EXPECT_EQ(openingScale({2560, 1440}), 1);
    EXPECT_EQ(openingScale({1900, 1500}), 2);
    EXPECT_EQ(openingScale({3840, 2160}), 2);
    EXPECT_EQ(openingScale({1631, 4000}), 1);
    EXPECT_EQ(openingScale({20000, 20000}), 4);
}

TEST(Scaling, PicturesAreWholeMultiplesCentredInAnyLargeEnoughArea) {
    for (int width = 408; width < 2000; width += 37)
        for (int height = 488; height < 2100; height += 41) {
            const Rect fit = fitFrame(frame, {width, height});
            const int scale = widthOf(fit) / frame.width;
            ASSERT_TRUE(widthOf(fit) == frame.width * scale && heightOf(fit) == frame.height * scale);
            ASSERT_TRUE(widthOf(fit) <= width && heightOf(fit) <= height) << width << " x " << height;
            ASSERT_TRUE(width < frame.width * (scale + 1) || height < frame.height * (scale + 1));
            ASSERT_LE(std::abs(fit.x1 - (width - 1 - fit.x2)), 1);
            ASSERT_LE(std::abs(fit.y1 - (height - 1 - fit.y2)), 1);
        }
}

TEST(Scaling, SmallAreasShowTheWholeFrameInItsShape) {
    for (const Extent area :
         {Extent{300, 480}, Extent{407, 488}, Extent{900, 244}, Extent{1, 1}, Extent{3, 900}}) {
        const Rect fit = fitFrame(frame, area);
        EXPECT_TRUE(contains({0, 0, area.width - 1, area.height - 1}, fit.x1, fit.y1));
        EXPECT_TRUE(contains({0, 0, area.width - 1, area.height - 1}, fit.x2, fit.y2));
        EXPECT_TRUE(widthOf(fit) == area.width || heightOf(fit) == area.height);
        EXPECT_NEAR(widthOf(fit) * frame.height, heightOf(fit) * frame.width, frame.height);
    }
}

TEST(Scaling, PlacesMapBackToTheFramesPixelsAndNoFurther) {
    for (const Extent area : {Extent{408, 488}, Extent{900, 1000}, Extent{1900, 1500}, Extent{300, 480}}) {
        const Rect fit = fitFrame(frame, area);
        EXPECT_EQ(framePixelAt(frame, fit, fit.x1, fit.y1), (Point{0, 0}));
        const auto last = framePixelAt(frame, fit, fit.x2, fit.y2);
        ASSERT_TRUE(last);
        EXPECT_NEAR(last->x, 407, 1);
        EXPECT_NEAR(last->y, 487, 1);
        EXPECT_FALSE(framePixelAt(frame, fit, fit.x1 - 1, fit.y1));
        EXPECT_FALSE(framePixelAt(frame, fit, fit.x1, fit.y2 + 1));
    }
    EXPECT_EQ(framePixelAt(frame, fitFrame(frame, {900, 1000}), 857, 987), (Point{407, 487}));
    EXPECT_FALSE(framePixelAt(frame, fitFrame(frame, {408, 488}), -3, 5));
}

TEST(Scaling, ChangedRowsReachFromTheFirstToTheLastDifference) {
    const Extent small{3, 4};
    const Rows all{0, 3};
    const std::vector<Colour> before(12, 7);
    EXPECT_GT(changedRows(small, all, before.data(), before.data()).first, all.last);
    std::vector<Colour> now = before;
    now[5] = 8;
    EXPECT_EQ(changedRows(small, all, before.data(), now.data()), (Rows{1, 1}));
    now[6] = 8;
    EXPECT_EQ(changedRows(small, all, before.data(), now.data()), (Rows{1, 2}));
    now[0] = now[11] = 8;
    EXPECT_EQ(changedRows(small, all, before.data(), now.data()), (Rows{0, 3}));
    EXPECT_EQ(changedRows(small, {1, 3}, before.data(), now.data()), (Rows{1, 3}));
}

TEST(Scaling, EnlargedPixelsAreHardBlocksAndTheRestStays) {
    const std::vector<Colour> pixels{1, 2, 3, 4, 5, 6, 7, 8, 9};
    const Extent small{3, 3};
    Area area({11, 12});
    const Rect fit = fitFrame(small, area.size);
    EXPECT_EQ(drawFitted(small, pixels.data(), {1, 2}, fit, area.pixels.data(), area.size.width),
              (Rect{1, 4, 9, 9}));
    for (int y = 0; y < area.size.height; ++y)
        for (int x = 0; x < area.size.width; ++x) {
            const auto source = framePixelAt(small, fit, x, y);
            const bool drawn = source && source->y >= 1;
            EXPECT_EQ(area.at(x, y), drawn ? static_cast<Colour>(source->y * 3 + source->x + 1) : untouched);
        }
}

TEST(Scaling, ShrunkPicturesAverageEveryPixelOfTheFrame) {
    const std::vector<Colour> pixels{0xFF000000, 0xFF0000FF, 0xFF800000, 0xFF008000,
                                     0xFF0000FF, 0xFF000000, 0xFF800000, 0xFF008000};
    Area area({2, 9});
    const Rect fit = fitFrame({4, 2}, area.size);
    EXPECT_EQ(drawFitted({4, 2}, pixels.data(), {1, 1}, fit, area.pixels.data(), area.size.width), fit);
    EXPECT_EQ(area.at(0, 4), 0xFF00007FU);
    EXPECT_EQ(area.at(1, 4), 0xFF404000U);
    EXPECT_EQ(area.at(0, 3), untouched);
    EXPECT_EQ(area.at(1, 5), untouched);
}

}  // namespace

}  // namespace gloomdeck
