// The keys and buttons of the play screen, and the screens that they open.
#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

const char* const playTitle = "Gloomdeck 1.2";
const char* const selectionTitle = "Select a game";

class CommandTest : public QuickPlayTest {
  protected:
    void SetUp() override {
        QuickPlayTest::SetUp();
        script.startScenario(4).check([] { giveHero(50); });
    }

    Script& expect(int turns, int mode = target::none) {
        return script.check([=] { EXPECT_EQ(std::pair(game.turns, ui.targetMode), std::pair(turns, mode)); });
    }
};

TEST_F(CommandTest, CharactersWithoutAMeaningDoNothing) {
    const auto look = [] { return std::pair(gameBytes(), script::shownFrame()); };
    auto before = look();
    script.check([&] { before = look(); });
    script.type(R"(!"#$%&'()*,./0123456789:;<=>@ABCDFGIJKLMOSUVWYZ[\]^_`abcdefghijklmnopqrstuvwxyz{|}~)");
    script.type(" \r\x1B\b").key(keycode::up).check([&] { EXPECT_TRUE(before == look()); });
    finish();
}

TEST_F(CommandTest, KeysAndButtonsOpenTheSameScreensAndEveryWayLeavesThem) {
    const std::tuple<const char*, const char*, Point> ways[] = {
        {"Help", "?", widgetCentre(id::help)},
        {"Help", "H", widgetCentre(id::help)},
        {"Preferences", "P", widgetCentre(id::prefs)},
        {"Train or trade", "T", statsCell(gold)},
    };
    for (const auto& [title, key, place] : ways) {
        for (const std::string_view leaving : {"q", "Q", "\x1B", "\r", " "})
            script.key(key).screen(title).key("x").screen(title).key(leaving).screen(playTitle);
        script.key(key).closeWindow().screen(playTitle);
        script.click(place).screen(title).button(id::done).screen(playTitle);
    }
    finish();
}

TEST_F(CommandTest, ReplayAndNewAskDuringPlayAndNothingAfterTheEndWhereTrainingIsClosed) {
    const Point tile = boardCell(2, bottomRow);
    for (const char* key : {"R", "N"}) script.key(key).key("n").screen(playTitle).key(key).key("\x1B");
    for (const int button : {id::newGame, id::replay})
        script.button(button).key("\t").key("\r").screen(playTitle);
    script.click(tile);
    expect(1).key("R").key("y");
    expect(0).check([] { giveHero(50); }).click(tile).button(id::replay).key("\r");
    expect(0).key("N").key("\r").screen(selectionTitle).key("\r").screen(playTitle);
    script.button(id::newGame).key("Y").screen(selectionTitle).key("\r");

    script.hurry().clearBoard().key("T").screen(playTitle).click(statsCell(gold)).screen(playTitle);
    script.key("N").screen(selectionTitle).key("\r").check([] { EXPECT_FALSE(prefs.scenarioOver); });
    script.hurry().clearBoard().button(id::newGame).screen(selectionTitle).key("\r");
    script.hurry().clearBoard().button(id::replay);
    expect(0).hurry().clearBoard().key("R").check([] { EXPECT_EQ(game.turns, 0); });
    finish();
}

TEST_F(CommandTest, EveryWayOutAsksAndGoesOnAfterNo) {
    for (const char* key : {"Q", "X", "E"}) {
        script.key(key).key("N").screen(playTitle);
        EXPECT_EQ(firstRun(Script(script).key(key).key("y")), 0) << key;
    }
}

TEST_F(CommandTest, AKeyOfAClicksPassIsForgottenUnlessItEndsTheLoop) {
    const Point tile = boardCell(0, bottomRow);
    script.check([] { board(0, bottomRow) = board(0, bottomRow - 1) = enc::Fruit; });
    for (const char* key : {"P", "X"})
        script.screen(playTitle).press(tile).then([=](InputQueue& queue) {
            buttonChanged(queue, false);
            keyTyped(queue, key);
        });
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(game.turns, 2);
}

TEST_F(CommandTest, AModeIsLeftByItsOwnRowAndByAnotherScreenAndStaysWhereItMayNotStrike) {
    for (const auto& [item, mode] :
         {std::pair{lightningBolts, target::lightning}, {bombs, target::bomb}, {hands, target::hand}}) {
        script.click(statsCell(item));
        expect(0, mode).click(statsCell(item));
        expect(0).click(statsCell(item)).key("H").key("q");
        expect(0);
    }
    script.check([] { EXPECT_EQ(TotalStats(), 50 * itemCount); });
    script.check([] { column(5).finished = 1; }).click(statsCell(lightningBolts)).click(boardCell(5, 1));
    expect(0, target::lightning);
    finish();
}

}  // namespace gloomdeck
