// Turns as the main loop takes them: the message bar, the autoplayer, questions, and what a screen forgets.
#include "content/game_flow.h"
#include "platform/random.h"
#include "prefs/switches.h"
#include "shell/play/play_view.h"
#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

class TurnsTest : public PlayTest {
  protected:
    void SetUp() override {
        PlayTest::SetUp();
        script.startScenario(5).check([] {
            useRandomSource([] { return 0.0; });  // every roll shows 1
            makeEmptyBoard();
            fillBoard(enc::Darkness);
            giveHero(9);
            game.turns = 1;
            openPlayScreen();
        });
    }
    Script& bar(const std::array<std::string, 4>& lines) {
        return script.check([=] { EXPECT_EQ(messageBar.lines, lines); });
    }
    Script& meet(int col) { return script.click(boardCell(col, bottomRow)); }
};

TEST_F(TurnsTest, AMarkedMessageStandsForItsPassAndScrollsAtTheNextTurn) {
    script.check([] {
        level(lockpicking) = 5;
        cell(2, bottomRow) = enc::Door;
    });
    meet(2);
    bar({"You picked the lock!", "Click on the bottom row of the map grid above."});
    meet(3);
    bar({"", "You picked the lock!", "Click on the bottom row of the map grid above."});
    finish();
}

TEST_F(TurnsTest, TheAutoplayerFollowsThePlayersOwnTurnAndTheBarScrollsInEachOfItsTurns) {
    script.check([] {
        setSwitch(Switch::goodStuff, true);
        for (const int row : {4, 5, 6}) cell(5, row) = enc::Gold;
    });
    meet(1).check([] {
        EXPECT_EQ(std::pair(column(1).drawn, column(5).drawn), std::pair(1, 3));
        EXPECT_EQ(game.turns, 5);
    });
    bar({"", "", "", ""}).check([] { setSwitch(Switch::goodStuff, false); });
    meet(1).check([] { EXPECT_EQ(game.turns, 6) << "with its switches off"; });
    finish();
}

TEST_F(TurnsTest, WhatIsTypedAndPressedBehindAQuestionIsLostWithIt) {
    script.key("R").then([](InputQueue& queue) {
        pointAt(queue, widgetCentre(id::prefs), {true});
        for (const char* key : {"n", "P", "H"}) keyTyped(queue, key);
    });
    script.screen("Gloomdeck 1.2").release(widgetCentre(id::prefs)).screen("Gloomdeck 1.2");
    script.button(id::prefs).screen("Preferences").key("q");
    finish();
}

TEST_F(TurnsTest, AHoveredSquareIsForgottenWhenThePlayScreenOpensAndHoveredAnew) {
    for (const Point at : {boardCell(4, 4), statsCell(suns)})
        script.move(at).key("H").key("q").check([=] {
            EXPECT_EQ(widget(id::board).hoverCol, at == boardCell(4, 4) ? 4 : -1);
            EXPECT_EQ(widget(id::stats).hoverCol, at == boardCell(4, 4) ? -1 : 0);
        });
    finish();
}

}  // namespace gloomdeck
