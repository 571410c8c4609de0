// The yes/no question over the frame.
#include "platform/question.h"

#include "platform/frame.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

constexpr Point yesButton{167, 262};  // inside the buttons of the standard question
constexpr Point noButton{240, 262};

}  // namespace

class QuestionTest : public GameTest {
  protected:
    static bool ask(const Script& player) {
        startScript(player);
        const bool answer = askYesNo("Really exit game?", "confirm");
        finishScript();
        return answer;
    }
};

TEST_F(QuestionTest, EveryKeyOfItsOwnAnswersEnterTakesTheMarkedButtonAndAClickItsOwn) {
    for (const char* key : {"Y", "y", "\r"}) EXPECT_TRUE(ask(Script().type("xQ ").key(key))) << key;
    for (const char* key : {"N", "n", "\x1B"}) EXPECT_FALSE(ask(Script().key(key))) << key;
    for (const char* mover : {"\t", "\xFFH", "\xFFP", "\xFFK", "\xFFM"})
        EXPECT_FALSE(ask(Script().key(mover).key("\r"))) << mover;
    EXPECT_TRUE(ask(Script().type("\t\t\r")));
    EXPECT_TRUE(ask(Script().click(yesButton)));
    EXPECT_FALSE(ask(Script().press(yesButton).leave().release({5, 5}).click(noButton)));
}

TEST_F(QuestionTest, EarlierKeysPressesAndAutoRepeatsDoNotAnswer) {
    keyTyped(inputQueue(), "y");
    clickAt(inputQueue(), yesButton);
    buttonChanged(inputQueue(), true);
    Script player;
    for (const char* key : {"Y", "\r"}) player.then([=](InputQueue& queue) { keyTyped(queue, key, true); });
    EXPECT_FALSE(ask(player.leave().move(yesButton).release(yesButton).click(noButton)));
}

TEST_F(QuestionTest, ACloseRequestAnswersNoAndStays) {
    EXPECT_FALSE(ask(Script().closeWindow()));
    EXPECT_FALSE(ask(Script())) << "one that came before it counts too";
    EXPECT_EQ(readKey() + readKey(), keycode::close);
    endRequested(inputQueue());
    EXPECT_FALSE(ask(Script()));
}

TEST_F(QuestionTest, TheClipComesBackAndALongQuestionLeavesTheEdgesOfTheFrame) {
    setClip(100, 150, 300, 200);
    startScript(Script()
                    .check([] {
                        for (const int x : {1, frameWidth - 2})
                            EXPECT_EQ(pixelAt(x, frameHeight / 2), colour::black) << x;
                    })
                    .key("n"));
    EXPECT_FALSE(askYesNo(std::string(60, '?'), "confirm"));
    finishScript();
    EXPECT_EQ(clipRect(), (Rect{100, 150, 300, 200}));
}

}  // namespace gloomdeck
