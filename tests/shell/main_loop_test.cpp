// The key and button tables of the main loop.
#include "shell/main_loop.h"

#include "platform/frame.h"
#include "shell/layout.h"
#include "shell/target_mode.h"
#include "shell/tile_set.h"
#include "tests/support/script.h"

namespace gloomdeck {

class MainLoopTest : public GameTest {
  protected:
    // Plays until the loop ends; every script ends it.
    static void play(const Script& player) {
        setWindowTitle("before");
        startScript(player);
        runMainLoop();
        finishScript();
    }
};

TEST_F(MainLoopTest, ClosingEndsAtOnceAndTheLeavingKeysAskFirst) {
    play(Script().closeWindow());
    for (const char* key : {"Q", "X", "E"}) play(Script().key(key).key("n").type("qxe").key(key).key("y"));
    play(Script().button(id::exit).key("\x1B").button(id::exit).key("\r"));
    play(Script().key("Q").closeWindow());
}

TEST_F(MainLoopTest, AKeyInThePassOfACompletedClickIsNoCommandButStillEndsTheLoop) {
    play(Script()
             .press(widgetCentre(id::prefs))
             .then([](InputQueue& queue) {
                 buttonChanged(queue, false);
                 keyTyped(queue, "Q");
             })
             .screen("Preferences")
             .key("\x1B"));
    EXPECT_EQ(script::windowTitle(), "Gloomdeck 1.2");
}

TEST_F(MainLoopTest, CommandsAreCapitalsAndOtherKeysDoNothing) {
    const Image before = screen();
    play(Script()
             .type("thnrpz]=")
             .key("\b")
             .key("\xFFH")
             .check([&] {
                 EXPECT_EQ(screen().pixels, before.pixels);
                 EXPECT_EQ(script::windowTitle(), "before");
             })
             .closeWindow());
}

TEST_F(MainLoopTest, TrainingAndEscapeWorkOnlyWhileTheGameIsNotOver) {
    play(Script().key("T").screen("Train or trade").key("q").screen("Gloomdeck 1.2").closeWindow());
    setTargetMode(target::bomb);
    play(Script().key("\x1B").newest("Canceled bomb mode.").closeWindow());
    setTargetMode(target::hand);
    prefs.scenarioOver = 1;
    play(Script().type("T\x1B").screen("before").closeWindow());
    EXPECT_EQ(ui.targetMode, target::hand);
}

TEST_F(MainLoopTest, SpaceAndEnterContinueOnlyWhenThatIsOffered) {
    for (const char* key : {" ", "\r"}) {
        widget(id::continueGame).hidden = true;
        prefs.scenarioOver = 1;
        play(Script().key(key).screen("before").closeWindow());
        widget(id::continueGame).hidden = false;
        play(Script().key(key).screen("Gloomdeck 1.2").closeWindow());
        prefs.scenarioOver = 0;
        play(Script().key(key).screen("before").closeWindow());
    }
}

TEST_F(MainLoopTest, AMoveIsFollowedByOneTurnOfTheBoardAndAButtonByNone) {
    board(2, 6) = enc::Door;
    count(keys) = 1;
    seedRolls(3);
    play(Script()
             .click(boardCell(2, 6))
             .check([] { EXPECT_EQ(game.turns, 1); })
             .click(boardCell(3, 2))
             .button(id::help)
             .key("\x1B")
             .key("+")
             .check([] { EXPECT_EQ(game.turns, 1); })
             .closeWindow());
}

TEST_F(MainLoopTest, AMissingStripLeavesItsTilesTransparentAndTheLastTileIsBeyondTheStrip) {
    const std::string folder = makeProgramFolder();
    script::setFolder(folder);
    EXPECT_EQ(std::remove((folder + "/gfx/dtiles2.bmp").c_str()), 0);
    loadTiles();
    const Image nothing = createImage(tile::size, tile::size);
    EXPECT_EQ(tileImage(tile::backpack).pixels[16 * 33], flatColour(tile::backpack));
    for (int number = 50; number <= 98; ++number) EXPECT_EQ(tileImage(number).pixels, nothing.pixels);
    EXPECT_EQ(tileImage(99).pixels[16 * 33], flatColour(99));
    EXPECT_EQ(tileImage(147).pixels[16 * 33], flatColour(147));
    EXPECT_EQ(tileImage(148).pixels, nothing.pixels);
    EXPECT_TRUE(tileImage(149).pixels.empty());
}

}  // namespace gloomdeck
