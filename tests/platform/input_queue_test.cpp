// The rules of pointer and key input.
#include "platform/input_queue.h"

#include <gtest/gtest.h>

namespace gloomdeck {

namespace {

void clickAt(InputQueue& queue, int x, int y) {
    pointerMoved(queue, x, y);
    buttonChanged(queue, true);
    buttonChanged(queue, false);
}

// What the polls hand out until nothing changes any more: "d12" for a button down at x 12, "u-1" for up
// outside.
std::string polled(InputQueue& queue) {
    std::string story;
    while (!queue.changes.empty()) {
        const MouseState state = takeMouse(queue);
        story += (queue.handedDown ? "d" : "u") + std::to_string(state.x) + " ";
    }
    return story;
}

std::string keysOf(InputQueue& queue) {
    std::string all;
    for (KeyPress key = takeKey(queue); !key.text.empty(); key = takeKey(queue)) all += key.text;
    return all;
}

}  // namespace

TEST(InputQueue, MovesCollapseAndAPointerOutsideHasNoPlace) {
    InputQueue queue;
    for (int x = 0; x < 50; ++x) pointerMoved(queue, x, 2 * x);
    EXPECT_EQ(takeMouse(queue).x, 49);
    EXPECT_EQ(takeMouse(queue).buttons, 0);
    pointerLeft(queue);
    const MouseState state = takeMouse(queue);
    EXPECT_NE(state.status, 0);
    EXPECT_TRUE(state.x == -1 && state.y == -1 && state.buttons == -1);
}

TEST(InputQueue, QuickClicksAreAllSeenWithTheirPlacesOneChangeAPoll) {
    InputQueue queue;
    for (const int x : {1, 2, 3}) clickAt(queue, x, 0);
    pointerMoved(queue, 200, 200);
    EXPECT_EQ(polled(queue), "d1 u1 d2 u2 d3 u3 ");
    EXPECT_EQ(takeMouse(queue).x, 200);
    buttonChanged(queue, true);
    takeMouse(queue);
    pointerMoved(queue, 70, 3);
    EXPECT_EQ(takeMouse(queue).buttons, 1) << "held until it changes";
}

TEST(InputQueue, OfWhatPiledUpInAPauseTheLastWholeClickOrAHeldPressIsKept) {
    InputQueue queue;
    for (const int x : {1, 2, 3}) clickAt(queue, x, 0);
    notePause(queue);
    EXPECT_EQ(polled(queue), "d3 u3 ");
    clickAt(queue, 4, 0);
    clickAt(queue, 5, 0);
    EXPECT_EQ(polled(queue), "d4 u4 d5 u5 ") << "the pause counts once";
    clickAt(queue, 6, 0);
    pointerMoved(queue, 7, 0);
    buttonChanged(queue, true);
    notePause(queue);
    EXPECT_EQ(polled(queue), "d7 ") << "a press still held is kept alone";
}

TEST(InputQueue, TheReleaseOfAPressTheGameSawIsOwedWhateverPilesUp) {
    InputQueue queue;
    pointerMoved(queue, 1, 0);
    buttonChanged(queue, true);
    takeMouse(queue);
    buttonChanged(queue, false);
    notePause(queue);
    InputQueue held = queue;
    EXPECT_EQ(polled(queue), "u1 ");
    for (const int x : {2, 3}) clickAt(held, x, 0);
    InputQueue clicked = held;
    EXPECT_EQ(polled(clicked), "u1 d3 u3 ");
    pointerMoved(held, 4, 0);
    buttonChanged(held, true);
    EXPECT_EQ(polled(held), "u1 d4 ");
}

TEST(InputQueue, AReleaseOutsideIsSeenAndAPressOutsideIsNone) {
    InputQueue queue;
    pointerMoved(queue, 9, 9);
    for (const bool down : {true, true}) buttonChanged(queue, down);
    EXPECT_EQ(polled(queue), "d9 ");
    pointerLeft(queue);
    EXPECT_EQ(takeMouse(queue).status, -1);
    EXPECT_TRUE(queue.handedDown);
    buttonChanged(queue, false);
    EXPECT_EQ(polled(queue), "u-1 ");
    buttonChanged(queue, true);
    pointerMoved(queue, 9, 9);
    EXPECT_EQ(takeMouse(queue).buttons, 0);
    buttonChanged(queue, false);
    EXPECT_TRUE(queue.changes.empty());
}

TEST(InputQueue, WithoutAnyPollTheQueuesStayBounded) {
    InputQueue queue;
    for (int x = 0; x < 100000; ++x) clickAt(queue, x, 0);
    for (int i = 0; i < 100000; ++i) keyTyped(queue, "x", true);
    closeRequested(queue);
    EXPECT_LT(queue.changes.size(), 10000U);
    EXPECT_LT(queue.keys.size(), 1000U);
    EXPECT_EQ(queue.changes.back().x, 99999);
    EXPECT_NE(keysOf(queue).find(keycode::close), std::string::npos);
}

TEST(InputQueue, OnlyKeysTheGameKnowsPassEachOnce) {
    InputQueue queue;
    for (const std::string_view key :
         {"a", "Z", " ", "~", "\r", "\x1B", "\b", "\xFFH", "\xFFP", "\xFFK", "\xFFM"})
        keyTyped(queue, key);
    EXPECT_EQ(keysOf(queue), "aZ ~\r\x1B\b\xFFH\xFFP\xFFK\xFFM");
    for (const std::string_view key : {"", "\n", "\x7F", "\xE4", "ab", "\xFFk", "\xFFG", "\xFF"})
        keyTyped(queue, key);
    EXPECT_EQ(keysOf(queue), "");
    EXPECT_FALSE(keyWaits(queue));
}

TEST(InputQueue, OneCloseRequestWaitsAtATimeAndNoneIsLost) {
    InputQueue queue;
    keyTyped(queue, "a");
    for (int i = 0; i < 2; ++i) closeRequested(queue);
    EXPECT_EQ(keysOf(queue), "a\xFFk");
    keyTyped(queue, "b");
    giveBackClose(queue);
    closeRequested(queue);
    giveBackClose(queue);
    EXPECT_EQ(keysOf(queue), std::string(keycode::close) + "b") << "given back in front, once";
    closeRequested(queue);
    keyTyped(queue, "d");
    dropWaitingKeys(queue);
    EXPECT_EQ(keysOf(queue), keycode::close);
    dropWaitingKeys(queue);
    EXPECT_FALSE(keyWaits(queue)) << "one that was read does not come back by itself";
}

TEST(InputQueue, TheEndOfTheSystemComesBackWheneverTheQueueIsEmpty) {
    InputQueue queue;
    keyTyped(queue, "a");
    endRequested(queue);
    EXPECT_EQ(takeKey(queue).text, "a");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(takeKey(queue).text, keycode::close);
        EXPECT_TRUE(keyWaits(queue));
    }
    dropEarlierInput(queue);
    EXPECT_EQ(takeKey(queue).text, keycode::close);
}

TEST(InputQueue, DroppingEarlierInputForgetsClicksButNotThatTheButtonIsDown) {
    InputQueue queue;
    clickAt(queue, 1, 0);
    pointerMoved(queue, 2, 0);
    buttonChanged(queue, true);
    keyTyped(queue, "y");
    dropEarlierInput(queue);
    EXPECT_FALSE(inputWaits(queue));
    EXPECT_EQ(takeMouse(queue).buttons, 1);
    buttonChanged(queue, false);
    EXPECT_EQ(polled(queue), "u2 ");
}

}  // namespace gloomdeck
