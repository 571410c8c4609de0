// The keys and buttons of the play screen, and the screens that they open.
#include <cstring>
#include <tuple>

#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

const char* const playTitle = "Gloomdeck 1.2";
const char* const selectionTitle = "Select a game";

struct Records {
    GameState game;
    Prefs prefs;

    bool operator==(const Records& other) const { return std::memcmp(this, &other, sizeof other) == 0; }
};

Records recordsNow() { return {.game = gloomdeck::game, .prefs = gloomdeck::prefs}; }

class CommandTest : public PlayTest {
  protected:
    void SetUp() override {
        PlayTest::SetUp();
        removePictures();
        script.startScenario(4).check([this] {
            giveHero(50);
            turnsAtStart = game.turns;
        });
    }

    // The last thing that the script does is to close the window.
    void finish() { EXPECT_EQ(run(script.closeWindow()), 0); }

    Script& expectTurns(int turns) {
        return script.check([=] { EXPECT_EQ(game.turns, turns); });
    }

    Script script;
    int turnsAtStart = 0;
};

}  // namespace

TEST_F(CommandTest, CharactersWithoutAMeaningDoNothing) {
    const std::string meaningful = " +-?HNRPQXET";
    Records before{};
    std::vector<Colour> picture;
    script.check([&] {
        before = recordsNow();
        picture = script::shownFrame();
    });
    for (char c = ' '; c <= '~'; ++c)
        if (meaningful.find(c) == std::string::npos) script.key(std::string(1, c));
    for (const auto code : {keycode::space, keycode::enter, keycode::escape, keycode::backspace, keycode::up,
                            keycode::down, keycode::left, keycode::right})
        script.key(code);
    script.screen(playTitle).check([&] {
        EXPECT_TRUE(before == recordsNow());
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
                           Way{"Preferences", "P", id::prefs}, Way{"Train or trade", "T", 0}}) {
        for (const std::string_view leaving : {"q", "Q", "\x1B", "\r", " "})
            script.key(way.key).screen(way.title).key("x").screen(way.title).key(leaving).screen(playTitle);
        script.key(way.key).button(id::done).screen(playTitle);
        script.key(way.key).closeWindow().screen(playTitle);
        if (way.button) script.button(way.button).screen(way.title).key("q").screen(playTitle);
    }
    script.click(statsCell(gold)).screen("Train or trade").button(id::done).screen(playTitle);
    expectTurns(0);
    finish();
}

TEST_F(CommandTest, TrainingSpendsGoldAndNoTurn) {
    script.key("T")
        .button(id::training + toughness)
        .button(id::training + itemCount - 1)
        .button(id::training);
    script.key("q").check([] {
        EXPECT_EQ(count(gold), 20);
        EXPECT_EQ(level(toughness), 5);
        EXPECT_EQ(count(health), 55);
        EXPECT_EQ(level(lockpicking), 0);
    });
    expectTurns(0);
    finish();
}

TEST_F(CommandTest, SpeedKeysStopAtTheirEndsAndSaySo) {
    script.key("+").newest("Game speed increased to Fast.").key("-").key("-").key("-");
    script.newest("Game speed decreased to Slowest.").key("-").newest("Game speed at minimum.");
    finish();
}

TEST_F(CommandTest, ReplayAndNewAskDuringPlay) {
    for (const auto& [key, button] : {std::tuple{"R", id::replay}, std::tuple{"N", id::newGame}}) {
        script.click(boardCell(2, bottomRow)).key(key).key("n").screen(playTitle);
        expectTurns(1);
        script.button(button).key("\x1B").screen(playTitle);
        expectTurns(1);
        script.button(button).key("\t").key("\r").screen(playTitle);
        expectTurns(1);
        script.key("R").key("y");
        expectTurns(0);
        script.check([] { giveHero(50); });
    }
    script.key("N").key("\r").screen(selectionTitle).key("\r").screen(playTitle);
    script.button(id::newGame).key("Y").screen(selectionTitle);
    finish();
}

TEST_F(CommandTest, AnsweringByMouseTakesAClickOnOneButton) {
    const Point yes{168, 269};
    const Point no{240, 269};
    script.key("N").click({20, 20}).press(yes).release(no).click(no).screen(playTitle);
    script.key("N").click(yes).screen(selectionTitle);
    finish();
}

TEST_F(CommandTest, AfterTheEndReplayAndNewAskNothingAndTrainingIsClosed) {
    script.hurry().clearBoard().key("T").screen(playTitle).click(statsCell(gold)).screen(playTitle);
    script.key("N").screen(selectionTitle).key("\r").check([] { EXPECT_FALSE(prefs.scenarioOver); });
    script.hurry().clearBoard().button(id::newGame).screen(selectionTitle).key("\r");
    script.hurry().clearBoard().button(id::replay);
    expectTurns(0);
    script.hurry().clearBoard().key("R");
    expectTurns(0);
    finish();
}

TEST_F(CommandTest, EveryWayOutAsksAndGoesOnAfterNo) {
    for (const char* key : {"Q", "X", "E"}) {
        script.key(key).key("N").screen(playTitle);
        Script leaving = script;
        EXPECT_EQ(firstRun(leaving.key(key).key("y")), 0) << key;
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
    expectTurns(1);
    script.press(tile).then(releaseWith("X"));
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(game.turns, 2);
}

TEST_F(CommandTest, APressThatEndsElsewhereIsNoClick) {
    Records before{};
    script.check([&] { before = recordsNow(); });
    script.press(widgetCentre(id::help)).release(widgetCentre(id::prefs)).screen(playTitle);
    script.press(boardCell(3, bottomRow)).release(boardCell(4, bottomRow));
    script.press(boardCell(3, bottomRow)).leave().then([](InputQueue& queue) {
        buttonChanged(queue, false);
    });
    script.press(widgetCentre(id::help)).leave().screen(playTitle).release(boardCell(3, bottomRow));
    script.press({404, 484}).release(widgetCentre(id::help)).click(boardCell(3, 2)).screen(playTitle);
    script.check([&] { EXPECT_TRUE(before == recordsNow()); }).click(boardCell(3, bottomRow));
    expectTurns(1);
    finish();
}

// What a targeting mode is armed with, how it is called, and a target that it can be used on.
struct Aim {
    int item;
    int mode;
    const char* name;
    const char* prompt;
};

class AimTest : public CommandTest, public ::testing::WithParamInterface<Aim> {
  protected:
    Script& arm() {
        script.click(statsCell(GetParam().item))
            .newest(std::string(GetParam().prompt) + ", <Esc> to cancel.");
        return expectMode(GetParam().mode);
    }

    Script& expectMode(int mode) {
        return script.check([=] { EXPECT_EQ(ui.targetMode, mode); });
    }
};

TEST_P(AimTest, IsCancelledThreeWays) {
    arm().key("\x1B").newest(std::string("Canceled ") + GetParam().name + " mode.");
    expectMode(target::none);
    arm().click(statsCell(suns)).newest("Spell canceled.");
    expectMode(target::none);
    arm().click(statsCell(GetParam().item)).newest("Spell canceled.");
    arm().key("H").key("q").newest("Click on the bottom row of the map grid above.");
    expectMode(target::none);
    expectTurns(0);
    script.check([] { EXPECT_EQ(TotalStats(), 50 * itemCount); });
    finish();
}

TEST_P(AimTest, IsUsedOnce) {
    script.check([] { board(3, 3) = enc::Gold; });
    arm().click(boardCell(3, 3)).check([] {
        EXPECT_EQ(count(GetParam().item), 49);
        EXPECT_EQ(ui.targetMode, target::none);
    });
    expectTurns(1);
    script.click(boardCell(3, 3));
    expectTurns(1);
    script.check([] { count(GetParam().item) = 0; }).click(statsCell(GetParam().item)).check([] {
        EXPECT_TRUE(newestMessage().ends_with(" to use."));
        EXPECT_EQ(ui.targetMode, target::none);
    });
    finish();
}

TEST_P(AimTest, IsArmedByAPressWhereverItIsReleased) {
    script.press(statsCell(GetParam().item)).leave();
    expectMode(GetParam().mode);
    finish();
}

INSTANTIATE_TEST_SUITE_P(Modes, AimTest,
                         ::testing::Values(Aim{lightningBolts, target::lightning, "lightning",
                                               "Choose a column of the map"},
                                           Aim{bombs, target::bomb, "bomb", "Place the bomb on the map"},
                                           Aim{hands, target::hand, "hand", "Select a square on the map"}),
                         [](const auto& each) { return each.param.name; });

TEST_F(CommandTest, LightningKeepsItsAimOnAFinishedColumn) {
    script.check([] { column(5).finished = 1; }).click(statsCell(lightningBolts)).click(boardCell(5, 1));
    script.check([] { EXPECT_EQ(ui.targetMode, target::lightning); });
    expectTurns(0);
    finish();
}

TEST_F(CommandTest, SpellsAndCountsOfTheStatsColumn) {
    script.click(statsCell(keys)).newest("You have 50 Keys.");
    expectTurns(0);
    script.click(statsCell(suns)).click(statsCell(shields));
    expectTurns(2);
    script.check([] { EXPECT_EQ(count(suns) + count(shields), 98); });
    finish();
}

}  // namespace gloomdeck
