// The yes/no question over the frame.
#include "platform/question.h"

#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

constexpr Point yesButton{167, 262};  // inside the buttons of the standard question
constexpr Point noButton{240, 262};

}  // namespace

class QuestionTest : public GameTest {
  protected:
    // Asks with the script as its player.
    static bool ask(const Script& player) {
        startScript(player);
        const bool answer = askYesNo("Really exit game?", "confirm");
        finishScript();
        return answer;
    }
};

TEST_F(QuestionTest, EveryKeyOfItsOwnAnswersAndEnterTakesTheMarkedButton) {
    for (const char* key : {"Y", "y", "\r"}) EXPECT_TRUE(ask(Script().type("xQ ").key(key))) << key;
    for (const char* key : {"N", "n", "\x1B"}) EXPECT_FALSE(ask(Script().key(key))) << key;
    for (const char* mover : {"\t", "\xFFH", "\xFFP", "\xFFK", "\xFFM"}) {
        EXPECT_FALSE(ask(Script().key(mover).key("\r")));
        EXPECT_TRUE(ask(Script().key(mover).key(mover).key("\r")));
    }
}

TEST_F(QuestionTest, AClickAnswersWhenItGoesDownAndUpOnOneButton) {
    EXPECT_TRUE(ask(Script().click(yesButton)));
    EXPECT_FALSE(ask(Script().click(noButton)));
    EXPECT_FALSE(ask(Script()
                         .press(yesButton)
                         .release(noButton)
                         .press({5, 5})
                         .release(yesButton)
                         .click({204, 220})
                         .press(yesButton)
                         .leave()
                         .then([](InputQueue& queue) { buttonChanged(queue, false); })
                         .click(noButton)));
}

TEST_F(QuestionTest, APressThatBeganBeforeItDoesNotAnswerEvenAfterLeavingTheFrame) {
    pointerMoved(inputQueue(), 10, 10);
    buttonChanged(inputQueue(), true);
    EXPECT_FALSE(ask(Script().move(yesButton).leave().move(yesButton).release(yesButton).click(noButton)));
}

TEST_F(QuestionTest, EarlierInputAndAutoRepeatsDoNotAnswer) {
    keyTyped(inputQueue(), "y");
    pointerMoved(inputQueue(), yesButton.x, yesButton.y);
    buttonChanged(inputQueue(), true);
    buttonChanged(inputQueue(), false);
    const auto repeat = [](std::string_view key) {
        return [=](InputQueue& queue) { keyTyped(queue, key, true); };
    };
    EXPECT_FALSE(ask(Script().then(repeat("Y")).then(repeat("\r")).then(repeat("\t")).key("N")));
}

TEST_F(QuestionTest, ACloseRequestAnswersNoAndStays) {
    EXPECT_FALSE(ask(Script().closeWindow()));
    EXPECT_EQ(readKey(), keycode::close);
    EXPECT_EQ(readKey(), "");
    keyTyped(inputQueue(), "y");
    closeRequested(inputQueue());
    EXPECT_FALSE(ask(Script())) << "one that came before it counts too";
    EXPECT_EQ(readKey(), keycode::close);
    endRequested(inputQueue());
    EXPECT_FALSE(ask(Script()));
}

TEST_F(QuestionTest, WhatItCoveredAndTheClipComeBackExactly) {
    for (std::size_t i = 0; i < screen().pixels.size(); ++i)
        screen().pixels[i] = 0xFF000000 | static_cast<Colour>(i * 7919);
    frameChanged();
    setClip(100, 150, 300, 200);
    const Image before = screen();
    ask(Script()
            .press(yesButton)
            .check([&] {
                EXPECT_NE(screen().pixels, before.pixels);
                EXPECT_EQ(script::shownFrame(), screen().pixels);
            })
            .release({0, 0})
            .key("n"));
    EXPECT_EQ(screen().pixels, before.pixels);
    EXPECT_EQ(clipRect(), (Rect{100, 150, 300, 200}));
    readKey();
    EXPECT_EQ(script::shownFrame(), before.pixels);
}

}  // namespace gloomdeck
