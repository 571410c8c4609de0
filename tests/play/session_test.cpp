// Whole sessions through the real start-up and main loop.
#include <cstring>
#include <vector>

#include "content/campaigns.h"
#include "platform/draw.h"
#include "platform/frame.h"
#include "prefs/score.h"
#include "rules/board.h"
#include "shell/layout.h"
#include "shell/panels.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

// Drawing it again changes nothing.
bool stands(const std::function<void()>& draw) {
    const Image before = screen();
    draw();
    const bool same = screen().pixels == before.pixels;
    screen() = before;
    return same;
}

void expectBanner(const char* text) {
    EXPECT_TRUE(stands([=] { drawBoardLabel(text, 193, 30); })) << text;
    const std::string score = "Score: " + std::to_string(ComputeScore());
    EXPECT_TRUE(stands([&] { drawBoardLabel(score, -13, 12); })) << score;
    EXPECT_GT(game.turns, 0);
}

}  // namespace

TEST_F(PlayTest, ABoardIsClearedSavedAndFoundAgain) {
    std::string saved;
    Script script;
    script.passTitle().screen("Select a game").key(keycode::right);
    for (int i = 0; i < 8; ++i) script.key(keycode::backspace);
    script.type("Mo").button(id::done).clearBoard();
    script.check([] { expectBanner("Congratulations!"); }).key(" ").check([] {
        EXPECT_EQ(game.scenario, 0);
        expectBanner("Congratulations!");
    });
    script.key("Q").key("n").screen("Gloomdeck 1.2").button(id::exit).key("y");
    EXPECT_EQ(run(script), 0);
    ASSERT_EQ(dataFile("DGDP.dat").size(), 484U);
    EXPECT_EQ(std::memcmp(dataFile("DGDP.dat").data(), &game, 484), 0);
    ASSERT_EQ(dataFile("DGDG.dat").size(), 52U);
    EXPECT_EQ(dataFile("DGDG.dat").substr(12, 4), std::string("Mo\0\0", 4));

    Script again;
    again.passTitle().screen("Gloomdeck 1.2").check([] { expectBanner("Congratulations!"); }).closeWindow();
    EXPECT_EQ(restart(again), 0);
}

}  // namespace gloomdeck
