#include "content/game_selection.h"

#include "platform/input.h"
#include "platform/palette.h"
#include "prefs/saved_data.h"
#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

Point listRow(int row) { return {330, 37 + 10 * row}; }
Point tab(int index) { return {40 + 78 * index, 16}; }

Script::Step headed(const char* name) {
    return [=](InputQueue&) { EXPECT_TRUE(textStandsAt(16, 40, name, colour::yellow)) << name; };
}

Script::Step named(const std::string& name) {
    return [=](InputQueue&) { EXPECT_TRUE(textStandsAt(16, 178, name, colour::text)) << name; };
}

}  // namespace

class SelectionTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        ApplyDefaults();
        prefs.skipText = 1;
    }

    static void play(const Script& script) {
        seedRolls(7);
        startScript(script);
        runGameSelection();
        finishScript();
    }
};

TEST_F(SelectionTest, ItOpensAtTheLastChoiceAndArrowsWrapAroundRowsAndTabs) {
    prefs.campaignChoice = 2;
    prefs.scenarioChoice = 6;
    Script script;
    script.then(headed("Thieves")).key(keycode::down).then(headed("Intro")).key(keycode::down);
    script.key(keycode::left).then(headed("Dungeon")).key(keycode::down).then(headed("Treasury"));
    script.key(keycode::up).key(keycode::up).then(headed("Magic Portals"));
    script.key(keycode::right).then(headed("Back and Forth")).key(keycode::up).key(keycode::up);
    play(script.then(headed("Thieves")).key(keycode::right).key("\r"));
    EXPECT_EQ(prefs.campaignChoice, none);
    EXPECT_EQ(prefs.scenarioChoice, 5);
    EXPECT_EQ(game.scenario, 4);
    play(Script().then(headed("Magic Portals")).key("\r"));
}

TEST_F(SelectionTest, TheMouseChoosesTabsAndRowsAndStartsTheGame) {
    prefs.scenarioChoice = 2;
    Script script;
    script.click(listRow(1)).then(headed("Back and Forth")).click(listRow(4));  // three campaigns only
    script.press(listRow(2)).release(listRow(0)).then(headed("Back and Forth"));
    script.click(tab(1)).then(headed("Easy")).click(listRow(6)).then(headed("Dungeon"));
    script.click(tab(1)).click(tab(0)).press({164, 208}).release({228, 208});
    play(script.button(id::done));
    EXPECT_EQ(prefs.campaignChoice, 1);
    EXPECT_EQ(prefs.scenarioChoice, 2) << "a campaign leaves the scenario's choice";
    EXPECT_EQ(game.campaign, 1);
}

TEST_F(SelectionTest, ATabThatAnArrowChoseStaysAtTheNextClickOnARow) {
    play(Script().key(keycode::right).click(listRow(3)).then(headed("Ruins")).key("\r"));
    EXPECT_EQ(std::pair(prefs.campaignChoice, prefs.scenarioChoice), std::pair(none, 3));
}

TEST_F(SelectionTest, ANameMayBeEmptyAndIsTypedUpToSeventeenCharacters) {
    play(Script().type("\b\b\b\b\b\b\b\b\b\b").key("\r"));
    EXPECT_EQ(prefs.heroName, (std::array<char, 21>{}));
    Script script;
    script.type("Sir Q of \"x<8\"").key(keycode::up).type("~!1 more");
    play(script.then(named("Sir Q of \"x<8\"~!1   ")).key("\r"));
    EXPECT_EQ(nameText(prefs.heroName), "Sir Q of \"x<8\"~!1");
    storeName(prefs.heroName, "abcdefghijklmnopqrst");  // as a data file may have it
    play(Script().key("u").then(named("abcdefghijklmnopqrst ")).type("\b\b\bx\bxy").key("\r"));
    EXPECT_EQ(nameText(prefs.heroName), "abcdefghijklmnopx");
}

TEST_F(SelectionTest, TheCursorBlinksTwiceASecond) {
    const auto cursorIs = [](Colour wanted) {
        return [=](InputQueue&) { EXPECT_EQ(pixelAt(19 + 8 * 8, 182), wanted); };
    };
    Script script;
    script.then(cursorIs(colour::yellow)).wait(0.3).then(cursorIs(colour::face));
    play(script.wait(0.3).then(cursorIs(colour::yellow)).key("\r"));
}

TEST_F(QuickPlayTest, LeavingTheSelectionSavesWithoutTheNewChoiceAlsoWhatIsDamaged) {
    ApplyDefaults();
    prefs.campaignChoice = -2;
    prefs.scenarioChoice = prefs.GameSpeed = 2147483647;
    prefs.heroName.fill('\x93');
    const std::string saved(reinterpret_cast<const char*>(&prefs), sizeof prefs);
    writeDataFile("DGDP.dat", "");
    writeDataFile("DGDG.dat", saved);
    script.passTitle().then(headed("Intro")).key(keycode::right).then(headed("Treasury"));
    EXPECT_EQ(run(script.type("\b\b\bx").button(id::selectionExit)), 0);
    EXPECT_EQ(dataFile("DGDG.dat"), saved);
    EXPECT_EQ(dataFile("DGDP.dat").size(), sizeof game) << "nothing was saved";
}

}  // namespace gloomdeck
