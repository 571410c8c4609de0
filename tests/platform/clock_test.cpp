// Pauses, the waits of polling loops, and when the frame is shown.
#include "platform/clock.h"

#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "shell/widgets/screen_lock.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

class ClockTest : public GameTest {
  protected:
    template <typename Pause>
    static long slept(Pause pause) {
        const long before = script::sleptMilliseconds();
        pause();
        return script::sleptMilliseconds() - before;
    }

    // Milliseconds that a sleep takes when a key comes at the given one of its steps (0: never).
    static long sleptWithKeyAtStep(int milliseconds, int keyStep) {
        resetInput();
        script::feedWhenPausing([=, step = 0](InputQueue& queue) mutable {
            if (++step == keyStep) keyTyped(queue, "x");
            return true;
        });
        return slept([=] { sleep(milliseconds); });
    }

    static void mark(int x) { fillBox(x, 0, x, 0, 0xFFFFFFFF); }
    static bool isShown(int x) { return script::shownFrame()[static_cast<std::size_t>(x)] == 0xFFFFFFFF; }
};

TEST_F(ClockTest, OnlyLongSleepsEndAtAKeyBeforeAStepAndTheLastStepIsUnchecked) {
    // clang-format off
    for (const auto& [asked, keyStep, slept] : {std::array
             {  0, 0,   0}, {  1, 0,   1}, { 50, 0,  50}, { 99, 0,  99}, {100, 0, 100}, {1234, 0, 1234},
             { 99, 1,  99}, {100, 1, 100}, {101, 1,  50}, {150, 1,  50}, {500, 4, 200}})
        EXPECT_EQ(sleptWithKeyAtStep(asked, keyStep), slept) << asked;
    // clang-format on
    EXPECT_EQ(slept([] { sleep(100); }), 0) << "the key stays in the queue";
    EXPECT_EQ(slept([] { sleep(99); }), 99);
    EXPECT_EQ(readKey(), "x");
    keyTyped(inputQueue(), "\t");
    EXPECT_EQ(slept([] { sleep(300); }), 300) << "Tab is no key of the game";
    endRequested(inputQueue());
    EXPECT_EQ(slept([] { sleep(99); }), 0) << "once the program must end no pause takes time";
}

TEST_F(ClockTest, PollingKeepsItsStepForAQuarterSecondAfterInputAndThenWaits) {
    pointerMoved(inputQueue(), 5, 5);
    int steps = 0;
    while (slept([] { pausePolling(10, timer() + 2.0); }) == 10) ++steps;
    EXPECT_NEAR(steps, 26, 1);
    const double before = timer();
    pausePolling(10, before + 2.0);
    EXPECT_NEAR(timer() - before, 2.0, 1e-6);
    keyTyped(inputQueue(), "x");
    script::advanceClock(1.0);
    EXPECT_EQ(slept([] { pausePolling(10); }), 10) << "a waiting key keeps the loop awake";
}

TEST_F(ClockTest, TheFrameIsShownOnceItChangedAndNotBeforeTheOutermostOfItsLocksIsReleased) {
    sleep(1);
    holdScreen();
    {
        const HeldScreen inner;
        mark(2);
    }
    for (const int pause : {0, 20, 200}) sleep(pause);
    getMouse();
    pausePolling(10, timer() + 1.0);
    EXPECT_FALSE(isShown(2));
    releaseScreen();
    EXPECT_TRUE(isShown(2));
    const long shown = script::presentCount();
    for (const int pause : {0, 20, 200}) sleep(pause);
    EXPECT_EQ(script::presentCount(), shown);
    mark(3);
    readKey();
    EXPECT_TRUE(isShown(3));
}

TEST_F(ClockTest, FasterPicturesThanTheDisplayAreSkippedAndTheLastIsNeverLost) {
    sleep(1);
    script::setFramePeriod(0.016);
    const long before = script::presentCount();
    for (int x = 0; x < 100; ++x) {
        mark(x);
        sleep(x % 2 == 0 ? 0 : 4);
    }
    EXPECT_NEAR(static_cast<double>(script::presentCount() - before), 0.200 / 0.016, 1);
    pausePolling(10, timer() + 1.0);
    EXPECT_TRUE(isShown(99)) << "before a wait";
    mark(200);
    EXPECT_EQ(slept([] { sleep(40); }), 40) << "showing in the middle of a pause makes it no longer";
    EXPECT_TRUE(isShown(200));
}

}  // namespace gloomdeck
