// The rules of pointer and key input.
#include "platform/input_queue.h"

#include <gtest/gtest.h>

namespace gloomdeck {

namespace {

void pressAt(InputQueue& queue, int x) {
    pointerMoved(queue, x, 0);
    buttonChanged(queue, true);
}

void clickAt(InputQueue& queue, int x) {
    pressAt(queue, x);
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

TEST(InputQueue, MovesCollapseAndQuickClicksAreAllSeenWithTheirPlacesOneChangeAPoll) {
    InputQueue queue;
    for (int x = 1; x < 4; ++x) clickAt(queue, x);
    for (int x = 50; x <= 200; ++x) pointerMoved(queue, x, 0);
    EXPECT_EQ(polled(queue), "d1 u1 d2 u2 d3 u3 ");
    EXPECT_EQ(takeMouse(queue).x, 200);
}

TEST(InputQueue, OfWhatPiledUpInAPauseTheLastWholeClickOrAHeldPressIsKept) {
    InputQueue queue;
    for (int x = 1; x < 4; ++x) clickAt(queue, x);
    notePause(queue);
    EXPECT_EQ(polled(queue), "d3 u3 ");
    for (int x = 4; x < 6; ++x) clickAt(queue, x);
    EXPECT_EQ(polled(queue), "d4 u4 d5 u5 ") << "the pause counts once";
    clickAt(queue, 6);
    pressAt(queue, 7);
    notePause(queue);
    EXPECT_EQ(polled(queue), "d7 ");
    buttonChanged(queue, false);  // owed to the press that the game saw
    for (int x = 8; x < 10; ++x) clickAt(queue, x);
    InputQueue held = queue;
    notePause(queue);
    EXPECT_EQ(polled(queue), "u7 d9 u9 ");
    pressAt(held, 10);
    notePause(held);
    EXPECT_EQ(polled(held), "u7 d10 ");
}

TEST(InputQueue, AReleaseOutsideIsSeenAndAPressOutsideIsNone) {
    InputQueue queue;
    pressAt(queue, 9);
    buttonChanged(queue, true);
    EXPECT_EQ(polled(queue), "d9 ");
    pointerLeft(queue);
    const MouseState outside = takeMouse(queue);
    EXPECT_TRUE(outside.status != 0 && outside.x == -1 && outside.y == -1 && outside.buttons == -1);
    buttonChanged(queue, false);
    EXPECT_EQ(polled(queue), "u-1 ");
    buttonChanged(queue, true);
    pointerMoved(queue, 9, 9);
    EXPECT_EQ(takeMouse(queue).buttons, 0);
    buttonChanged(queue, false);
    EXPECT_TRUE(queue.changes.empty());
}

TEST(InputQueue, OnlyKeysTheGameKnowsPassAndWithoutAnyPollTheQueueStaysBounded) {
    InputQueue queue;
    for (const std::string_view key : {"", "\n", "\x7F", "\xE4", "ab", "\xFFk", "\xFFG", "\xFF"})
        keyTyped(queue, key);
    EXPECT_FALSE(keyWaits(queue));
    for (const std::string_view key : {"a", " ", "~", "\r", "\x1B", "\b", "\xFFH", "\xFFP", "\xFFK", "\xFFM"})
        keyTyped(queue, key);
    EXPECT_EQ(keysOf(queue), "a ~\r\x1B\b\xFFH\xFFP\xFFK\xFFM");
    for (int i = 0; i < 20000; ++i) keyTyped(queue, "x", true);
    for (int x = 0; x < 20000; ++x) clickAt(queue, x);
    closeRequested(queue);
    EXPECT_LT(queue.keys.size() + queue.changes.size(), 10000U);
    EXPECT_EQ(queue.changes.back().x, 19999);
    EXPECT_NE(keysOf(queue).find(keycode::close), std::string::npos);
}

TEST(InputQueue, OneCloseRequestWaitsAtATimeAndNoneIsLost) {
    InputQueue queue;
    keyTyped(queue, "b");
    giveBackClose(queue);
    closeRequested(queue);
    giveBackClose(queue);
    EXPECT_EQ(keysOf(queue), std::string(keycode::close) + "b") << "given back in front, once";
    closeRequested(queue);
    keyTyped(queue, "d");
    dropWaitingKeys(queue);
    EXPECT_EQ(keysOf(queue), keycode::close);
    EXPECT_FALSE(keyWaits(queue)) << "one that was read does not come back by itself";
    endRequested(queue);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(takeKey(queue).text, keycode::close) << "but the system's end does";
}

}  // namespace gloomdeck
