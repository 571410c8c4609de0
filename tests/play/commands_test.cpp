// The keys and buttons of the play screen, and the screens that they open.
#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

const char* const playTitle = "Gloomdeck 1.2";
const char* const selectionTitle = "Select a game";

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
    script.type(" \r\x1B\b").key(keycode::up).check([&] {
        EXPECT_EQ(before, gameBytes());
        EXPECT_TRUE(picture == script::shownFrame());
    });
    finish();
}

TEST_F(CommandTest, KeysAndButtonsOpenTheSameScreensAndEveryWayLeavesThem) {
    struct Way {
        const char* title;
        const char* key;
        Point place;
    };
    for (const Way& way :
         {Way{"Help", "?", widgetCentre(id::help)}, Way{"Help", "H", widgetCentre(id::help)},
          Way{"Preferences", "P", widgetCentre(id::prefs)}, Way{"Train or trade", "T", statsCell(gold)}}) {
        for (const std::string_view leaving : {"q", "Q", "\x1B", "\r", " "})
            script.key(way.key).screen(way.title).key("x").screen(way.title).key(leaving).screen(playTitle);
        script.key(way.key).closeWindow().screen(playTitle);
        script.click(way.place).screen(way.title).button(id::done).screen(playTitle);
    }
    script.key("-").newest("Game speed decreased to Slow.");
    script.key("+").newest("Game speed increased to Normal.");
    expect(0);
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
    expect(0).hurry().clearBoard().key("R");
    expect(0);
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

TEST_F(CommandTest, AModeIsCancelledThreeWaysAndByAnotherScreen) {
    for (const auto& [item, mode, name, prompt] : aims) {
        const Point row = statsCell(item);
        script.click(row).newest(prompt);
        expect(0, mode).key("\x1B").newest("Canceled " + name + " mode.");
        for (const Point elsewhere : {statsCell(suns), row})
            expect(0).click(row).newest(prompt).click(elsewhere).newest("Spell canceled.");
        expect(0).click(row).key("H").key("q");
        expect(0).newest("Click on the bottom row of the map grid above.");
    }
    script.check([] { EXPECT_EQ(TotalStats(), 50 * itemCount); });
    script.check([] { column(5).finished = 1; }).click(statsCell(lightningBolts)).click(boardCell(5, 1));
    expect(0, target::lightning);
    finish();
}

TEST_F(CommandTest, AModeIsUsedOnce) {
    int turns = 0;
    for (const Aim& aim : aims) {
        script.check([] { board(3, 3) = enc::Gold; }).click(statsCell(aim.item)).click(boardCell(3, 3));
        expect(++turns).check([=] { EXPECT_EQ(std::exchange(count(aim.item), 0), 49); });
        script.click(boardCell(3, 3)).click(statsCell(aim.item));
        expect(turns).check([] { EXPECT_TRUE(newestMessage().ends_with(" to use.")); });
    }
    script.click(statsCell(suns)).click(statsCell(shields));
    expect(turns + 2).check([] { EXPECT_EQ(count(suns) + count(shields), 98); });
    finish();
}

}  // namespace gloomdeck
