// The rules of pointer and key input.
#include "platform/input_queue.h"

#include <gtest/gtest.h>

namespace gloomdeck {

namespace {

// What the polls hand out after events of two characters: c(lick), d(own), u(p), m(ove) with the pointer's x
// ('-': it has left), and a pause. "d7" is a button down at 7, "u-1" one up outside.
std::string polled(InputQueue& queue, std::string_view events) {
    for (; !events.empty(); events.remove_prefix(2)) {
        if (events[0] == 'p') {
            notePause(queue);
            continue;
        }
        events[1] == '-' ? pointerLeft(queue) : pointerMoved(queue, events[1] - '0', 0);
        if (events[0] == 'c' || events[0] == 'd') buttonChanged(queue, true);
        if (events[0] == 'c' || events[0] == 'u') buttonChanged(queue, false);
    }
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

TEST(InputQueue, MovesCollapseAndOfClicksInAPauseTheLastWholeOneOrAHeldPressIsKept) {
    InputQueue queue;
    EXPECT_EQ(polled(queue, "c1c2c3m5m6m8"), "d1 u1 d2 u2 d3 u3 ");
    EXPECT_EQ(takeMouse(queue).x, 8);
    EXPECT_EQ(polled(queue, "c1c2c3p."), "d3 u3 ");
    EXPECT_EQ(polled(queue, "c4c5"), "d4 u4 d5 u5 ") << "the pause counts once";
    EXPECT_EQ(polled(queue, "c6d7p."), "d7 ");
    InputQueue held = queue;
    EXPECT_EQ(polled(queue, "u7c8c9p."), "u7 d9 u9 ") << "a release is owed to the press that was seen";
    EXPECT_EQ(polled(held, "u7c8c9d3p."), "u7 d3 ");
}

TEST(InputQueue, AReleaseOutsideIsSeenAndAPressOutsideIsNone) {
    InputQueue queue;
    EXPECT_EQ(polled(queue, "d9d9"), "d9 ");
    pointerLeft(queue);
    const MouseState outside = takeMouse(queue);
    EXPECT_TRUE(outside.status != 0 && outside.x == -1 && outside.y == -1 && outside.buttons == -1);
    EXPECT_EQ(polled(queue, "u-"), "u-1 ");
    EXPECT_EQ(polled(queue, "d-m9u9"), "");
    EXPECT_EQ(takeMouse(queue).buttons, 0);
}

TEST(InputQueue, OnlyKeysTheGameKnowsPassAndWithoutAnyPollTheQueueStaysBounded) {
    InputQueue queue;
    for (const std::string_view key : {"", "\n", "\x7F", "\xE4", "ab", "\xFFk", "\xFFG", "\xFF", "a", " ",
                                       "~", "\r", "\x1B", "\b", "\xFFH", "\xFFP", "\xFFK", "\xFFM"})
        keyTyped(queue, key);
    EXPECT_EQ(keysOf(queue), "a ~\r\x1B\b\xFFH\xFFP\xFFK\xFFM");
    for (int i = 0; i < 20000; ++i) keyTyped(queue, "x", true);
    pointerMoved(queue, 5, 5);
    for (int change = 1; change <= 20000; ++change) buttonChanged(queue, change % 2 != 0);
    closeRequested(queue);
    EXPECT_LT(queue.keys.size() + queue.changes.size(), 10000U);
    ASSERT_FALSE(queue.changes.empty());
    EXPECT_FALSE(queue.changes.back().down);
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
