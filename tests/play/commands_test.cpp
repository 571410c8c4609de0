// The keys and buttons of the play screen, and the screens that they open.
#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

const char* const playTitle = "Gloomdeck 1.2";
const char* const selectionTitle = "Select a game";
const char* const hint = "Click on the bottom row of the map grid above.";

class CommandTest : public QuickPlayTest {
  protected:
    void SetUp() override {
        QuickPlayTest::SetUp();
        script.startScenario(4).check([] { giveHero(50); });
    }

    Script& expectTurns(int turns) {
        return script.check([=] { EXPECT_EQ(game.turns, turns); });
    }

    Script& expectMode(int mode) {
        return script.check([=] { EXPECT_EQ(ui.targetMode, mode); });
    }
};

struct Aim {
    int item;
    int mode;
    std::string name;
    std::string prompt;
};

const std::array<Aim, 3> aims{{
    {lightningBolts, target::lightning, "lightning", "Choose a column of the map, <Esc> to cancel."},
    {bombs, target::bomb, "bomb", "Place the bomb on the map, <Esc> to cancel."},
    {hands, target::hand, "hand", "Select a square on the map, <Esc> to cancel."},
}};

}  // namespace

TEST_F(CommandTest, CharactersWithoutAMeaningDoNothing) {
    const std::string meaningful = " +-?HNRPQXET";
    std::string before;
    std::vector<Colour> picture;
    script.check([&] {
        before = gameBytes();
        picture = script::shownFrame();
    });
    for (char c = '!'; c <= '~'; ++c)
        if (meaningful.find(c) == std::string::npos) script.key(std::string(1, c));
    for (const auto code : {keycode::space, keycode::enter, keycode::escape, keycode::backspace, keycode::up})
        script.key(code);
    script.check([&] {
        EXPECT_EQ(before, gameBytes());
        EXPECT_TRUE(picture == script::shownFrame());
    });
    finish();
}

TEST_F(CommandTest, KeysAndButtonsOpenTheSameScreensAndEveryWayLeavesThem) {
    struct Way {
        const char* title;
        const char* key;
        int button;
    };
    for (const Way& way : {Way{"Help", "?", id::help}, Way{"Help", "H", id::help},
                           Way{"Preferences", "P", id::prefs}, Way{"Train or trade", "T", id::stats}}) {
        for (const std::string_view leaving : {"q", "Q", "\x1B", "\r", " "})
            script.key(way.key).screen(way.title).key("x").screen(way.title).key(leaving).screen(playTitle);
        script.key(way.key).closeWindow().screen(playTitle);
        way.button == id::stats ? script.click(statsCell(gold)) : script.button(way.button);
        script.screen(way.title).button(id::done).screen(playTitle);
    }
    script.key("-")
        .newest("Game speed decreased to Slow.")
        .key("+")
        .newest("Game speed increased to Normal.");
    expectTurns(0);
    finish();
}

TEST_F(CommandTest, ReplayAndNewAskDuringPlay) {
    const auto noAndMore = [](InputQueue& queue) {
        for (const char* key : {"n", "P"}) keyTyped(queue, key);
    };
    for (const char* key : {"R", "N"}) script.key(key).then(noAndMore).screen(playTitle).key(key).key("\x1B");
    for (const int button : {id::newGame, id::replay})
        script.button(button).key("\t").key("\r").screen(playTitle);
    script.click(boardCell(2, bottomRow));
    expectTurns(1).key("R").key("y");
    expectTurns(0).check([] { giveHero(50); }).click(boardCell(2, bottomRow)).button(id::replay).key("\r");
    expectTurns(0).key("N").key("\r").screen(selectionTitle).key("\r").screen(playTitle);
    script.button(id::newGame).key("Y").screen(selectionTitle);
    finish();
}

TEST_F(CommandTest, AfterTheEndReplayAndNewAskNothingAndTrainingIsClosed) {
    script.hurry().clearBoard().key("T").screen(playTitle).click(statsCell(gold)).screen(playTitle);
    script.key("N").screen(selectionTitle).key("\r").check([] { EXPECT_FALSE(prefs.scenarioOver); });
    script.hurry().clearBoard().button(id::newGame).screen(selectionTitle).key("\r");
    script.hurry().clearBoard().button(id::replay);
    expectTurns(0).hurry().clearBoard().key("R");
    expectTurns(0);
    finish();
}

TEST_F(CommandTest, EveryWayOutAsksAndGoesOnAfterNo) {
    for (const char* key : {"Q", "X", "E"}) {
        script.key(key).key("N").screen(playTitle);
        EXPECT_EQ(firstRun(Script(script).key(key).key("y")), 0) << key;
    }
    script.button(id::exit).key("n").screen(playTitle).button(id::exit).key("\r");
    EXPECT_EQ(firstRun(script), 0);
}

TEST_F(CommandTest, AKeyOfAClicksPassIsForgottenUnlessItEndsTheLoop) {
    const auto releaseWith = [](const char* key) {
        return [=](InputQueue& queue) {
            buttonChanged(queue, false);
            keyTyped(queue, key);
        };
    };
    const Point tile = boardCell(0, bottomRow);
    script.check([] { board(0, bottomRow) = board(0, bottomRow - 1) = enc::Fruit; });
    script.press(tile).then(releaseWith("P")).screen(playTitle);
    expectTurns(1).press(tile).then(releaseWith("X"));
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(game.turns, 2);
}

TEST_F(CommandTest, AModeIsCancelledThreeWays) {
    for (const Aim& aim : aims) {
        const Point row = statsCell(aim.item);
        script.click(row).newest(aim.prompt).key("\x1B").newest("Canceled " + aim.name + " mode.");
        expectMode(target::none).click(row).click(statsCell(suns)).newest("Spell canceled.");
        expectMode(target::none).click(row).newest(aim.prompt).click(row).newest("Spell canceled.");
        expectMode(target::none).click(row);
        expectMode(aim.mode).key("H").key("q").newest(hint);
        expectMode(target::none);
    }
    expectTurns(0).check([] { EXPECT_EQ(TotalStats(), 50 * itemCount); });
    finish();
}

TEST_F(CommandTest, AModeIsUsedOnce) {
    int turns = 0;
    for (const Aim& aim : aims) {
        script.check([] { board(3, 3) = enc::Gold; }).click(statsCell(aim.item)).click(boardCell(3, 3));
        expectTurns(++turns).check([=] { EXPECT_EQ(count(aim.item), 49); }).click(boardCell(3, 3));
        expectMode(target::none).check([=] { count(aim.item) = 0; }).click(statsCell(aim.item));
        expectTurns(turns).check([] { EXPECT_TRUE(newestMessage().ends_with(" to use.")); });
    }
    script.click(statsCell(suns)).click(statsCell(shields));
    expectTurns(turns + 2).check([] { EXPECT_EQ(count(suns) + count(shields), 98); });
    finish();
}

TEST_F(CommandTest, LightningKeepsItsAimOnAFinishedColumn) {
    script.check([] { column(5).finished = 1; }).click(statsCell(lightningBolts)).click(boardCell(5, 1));
    expectMode(target::lightning);
    expectTurns(0);
    finish();
}

}  // namespace gloomdeck
