// Which rows of a frame differ from the one that is shown, and what is shown then.
#include "platform/shown_frame.h"

#include "platform/draw.h"
#include "platform/frame.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

// Where a frame of 3 x 6 with other pixels at those places differs; what is shown must then be as it is
// there.
std::vector<Rows> takenOver(Rows rows, std::initializer_list<std::size_t> places) {
    ShownFrame shown{.picture = createImage(3, 6), .differing = {}};
    Image frame = shown.picture;
    for (const std::size_t place : places) frame.pixels[place] = 8;
    const auto differing = takeOver(shown, frame, rows);
    std::vector<Rows> answer(differing.begin(), differing.end());
    for (auto place = static_cast<std::size_t>(rows.first) * 3;
         place / 3 <= static_cast<std::size_t>(rows.last); ++place)
        EXPECT_EQ(shown.picture.pixels[place], frame.pixels[place]) << place;
    EXPECT_TRUE(takeOver(shown, frame, rows).empty());
    EXPECT_EQ(takeOver(shown, frame, {0, 5}).empty(), shown.picture.pixels == frame.pixels);
    return answer;
}

}  // namespace

TEST(ShownFrame, RowsThatDifferAreTakenOverInStretchesAndOnlyAmongTheNamed) {
    using Stretches = std::vector<Rows>;
    EXPECT_EQ(takenOver({0, 5}, {}), Stretches{});
    EXPECT_EQ(takenOver({0, 5}, {0, 17}), (Stretches{{0, 0}, {5, 5}}));
    EXPECT_EQ(takenOver({0, 5}, {5, 6, 14}), (Stretches{{1, 2}, {4, 4}}));
    EXPECT_EQ(takenOver({1, 4}, {0, 3, 12, 17}), (Stretches{{1, 1}, {4, 4}}));
    EXPECT_EQ(takenOver({4, 3}, {9, 12}), Stretches{});
}

using ShownFrameTest = GameTest;

TEST_F(ShownFrameTest, WhatLooksAsBeforeIsNotPresented) {
    const auto presentsOf = [](Colour colour) {
        const long before = script::presentCount();
        clearScreen();
        fillBox(5, 5, 9, 9, colour);
        showFrameNow();
        EXPECT_FALSE(frameWaits()) << "and waits no longer";
        return script::presentCount() - before;
    };
    presentsOf(1);
    EXPECT_EQ(presentsOf(1), 0);
    EXPECT_EQ(presentsOf(2), 1);
    EXPECT_EQ(script::shownFrame(), screen().pixels);
}

}  // namespace gloomdeck
