// Pauses, the waits of polling loops, and when the frame is shown.
#include "platform/clock.h"

#include "platform/draw.h"
#include "platform/files.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "platform/rounding.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

class ClockTest : public GameTest {
  protected:
    // Milliseconds that a sleep takes when the key comes at the given one of its steps (from 1).
    static long sleptWithKeyAtStep(int milliseconds, int keyStep) {
        resetInput();
        int step = 0;
        script::feedWhenPausing([=](InputQueue& queue) mutable {
            if (++step == keyStep) keyTyped(queue, "x");
            return true;
        });
        return slept([=] { sleep(milliseconds); });
    }

    template <typename Pause>
    static long slept(Pause pause) {
        const long before = script::sleptMilliseconds();
        pause();
        return script::sleptMilliseconds() - before;
    }

    static void mark(int x) { fillBox(x, 0, x, 0, 0xFFFFFFFF); }
    static bool isShown(int x) { return script::shownFrame()[static_cast<std::size_t>(x)] == 0xFFFFFFFF; }
};

TEST_F(ClockTest, SleepTakesItsWholeTimeWhenNoKeyComes) {
    for (const int milliseconds : {1, 49, 50, 51, 99, 100, 101, 149, 150, 151, 1234})
        EXPECT_EQ(slept([=] { sleep(milliseconds); }), milliseconds);
    EXPECT_EQ(slept([] { sleep(0); }), 0);
    EXPECT_EQ(slept([] { sleep(-5); }), 0);
}

TEST_F(ClockTest, OnlyLongSleepsEndAtAKeyBeforeAStepAndTheLastStepIsUnchecked) {
    EXPECT_EQ(sleptWithKeyAtStep(99, 1), 99);
    EXPECT_EQ(sleptWithKeyAtStep(100, 1), 100) << "the last 50 are not checked";
    EXPECT_EQ(sleptWithKeyAtStep(150, 1), 50);
    EXPECT_EQ(sleptWithKeyAtStep(151, 2), 100);
    EXPECT_EQ(sleptWithKeyAtStep(500, 4), 200);
    EXPECT_EQ(slept([] { sleep(100); }), 0) << "the key stays in the queue";
    EXPECT_EQ(readKey(), "x");
    keyTyped(inputQueue(), "\t");
    EXPECT_EQ(slept([] { sleep(300); }), 300) << "Tab is no key of the game";
}

TEST_F(ClockTest, OnceTheProgramMustEndNoPauseTakesTime) {
    endRequested(inputQueue());
    for (const int milliseconds : {5, 99, 100, 5000}) EXPECT_EQ(slept([=] { sleep(milliseconds); }), 0);
    EXPECT_EQ(slept([] { pausePolling(10); }), 0);
    EXPECT_TRUE(programIsEnding());
}

TEST_F(ClockTest, PollingKeepsItsStepForAQuarterSecondAfterInputAndThenWaits) {
    pointerMoved(inputQueue(), 5, 5);
    int steps = 0;
    while (slept([] { pausePolling(10, timer() + 2.0); }) == 10) ++steps;
    EXPECT_GE(steps, 25);
    EXPECT_LE(steps, 27);
    const double before = timer();
    pausePolling(10, before + 2.0);
    EXPECT_NEAR(timer() - before, 2.0, 1e-6);
    keyTyped(inputQueue(), "x");
    EXPECT_EQ(slept([] { pausePolling(10); }), 10) << "a waiting key keeps the loop awake";
}

TEST_F(ClockTest, TheFrameIsShownBeforeAWaitAndInPausesOnlyWhenItChanged) {
    mark(1);
    pausePolling(10, timer() + 1.0);
    EXPECT_TRUE(isShown(1));
    const long shown = script::presentCount();
    sleep(20);
    getMouse();
    readKey();
    pausePolling(10, timer() + 1.0);
    EXPECT_EQ(script::presentCount(), shown);
    mark(2);
    readKey();
    EXPECT_TRUE(isShown(2));
    mark(3);
    sleep(1);
    EXPECT_TRUE(isShown(3));
}

TEST_F(ClockTest, NothingIsShownWhileTheScreenIsLocked) {
    sleep(1);
    lockScreen();
    mark(1);
    sleep(200);
    getMouse();
    pausePolling(10, timer() + 1.0);
    EXPECT_FALSE(isShown(1));
    unlockScreen();
    EXPECT_TRUE(isShown(1));
}

TEST_F(ClockTest, FasterPicturesThanTheDisplayAreSkippedAndTheLastIsNeverLost) {
    sleep(1);
    script::setFramePeriod(0.016);
    const long before = script::presentCount();
    const double start = timer();
    for (int x = 0; x < 100; ++x) {
        lockScreen();
        mark(x);
        unlockScreen();
        sleep(2);
    }
    const long most = static_cast<long>((timer() - start) / 0.016) + 1;
    EXPECT_LE(script::presentCount() - before, most);
    EXPECT_GE(script::presentCount() - before, most - 2);
    mark(200);
    pausePolling(10, timer() + 1.0);
    EXPECT_TRUE(isShown(99));
    EXPECT_TRUE(isShown(200));
    mark(201);
    EXPECT_EQ(slept([] { sleep(40); }), 40) << "showing in the middle of a pause makes it no longer";
    EXPECT_TRUE(isShown(201));
}

TEST(Rounding, HalvesGoToTheEvenNeighbourOnBothSidesOfZero) {
    constexpr std::array<int, 11> halves{-2, -2, -2, -1, 0, 0, 0, 1, 2, 2, 2};  // -5/2 to 5/2
    for (int i = -5; i <= 5; ++i) EXPECT_EQ(roundedRatio(i, 2), halves[static_cast<std::size_t>(i + 5)]) << i;
    EXPECT_EQ(roundedRatio(-7, 4), -2);
    EXPECT_EQ(roundedRatio(-5, 4), -1);
    EXPECT_EQ(roundedRatio(46, 10), 5);
}

TEST(Files, RecordsAreWrittenInPlaceAndReadBack) {
    const std::string folder = makeProgramFolder();
    const std::string path = folder + "\\Data\\record.dat";
    EXPECT_FALSE(fileExists(path));
    EXPECT_FALSE(fileExists(folder)) << "a folder is no file";
    const auto write = [&](const std::string& text) {
        File file = openFile(path);
        EXPECT_EQ(writeBytes(file, text.data(), text.size()), text.size());
        closeFile(file);
        closeFile(file);
    };
    write("0123456789");
    write("abc");
    EXPECT_TRUE(fileExists(folder + "/Data/record.dat"));
    std::string record(20, '.');
    File file = openFile(path);
    EXPECT_EQ(readBytes(file, record.data(), 20), 10U);
    EXPECT_EQ(record.substr(0, 10), "abc3456789") << "opening does not empty a file";
    closeFile(file);
    for (const std::string& unusable : {folder, folder + "/none/record.dat"}) {
        File closed = openFile(unusable);
        EXPECT_EQ(readBytes(closed, record.data(), 1), 0U);
        EXPECT_EQ(writeBytes(closed, record.data(), 1), 0U);
        closeFile(closed);
    }
    removeProgramFolders();
}

}  // namespace gloomdeck
