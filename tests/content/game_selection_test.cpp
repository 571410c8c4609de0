#include "content/game_selection.h"

#include <fstream>
#include <iterator>

#include "content/scenarios.h"
#include "content/selection_list.h"
#include "platform/input.h"
#include "prefs/saved_data.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/tiles.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

constexpr Point startButton{228, 208};
constexpr Point exitButton{164, 208};

Point listRow(int row) { return {330, 37 + 10 * row}; }
Point tab(int index) { return {40 + 78 * index, 16}; }

int currentTab() { return widget(id::tabs).selected; }

bool headed(const char* name) { return textStandsAt(16, 40, name, colour::yellow); }

bool nameStands(const std::string& name) { return textStandsAt(16, 178, name, colour::text); }

// The colour of the cursor behind a name of that length.
Colour cursorBehind(int length) { return pixelAt(19 + 8 * length, 182); }

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

class SelectionTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        folder = makeProgramFolder();
        script::setFolder(folder);
        ApplyDefaults();
        prefs.skipText = 1;
        prefs.GameSpeed = speedCount - 1;
    }
    void TearDown() override {
        rolls({});
        GameTest::TearDown();
    }

    static void play(const Script& script) {
        seedRolls(7);
        startScript(script);
        runGameSelection();
        finishScript();
    }

    std::string folder;
};

TEST_F(SelectionTest, ItOpensAtTheLastChoice) {
    prefs.campaignChoice = 2;
    play(Script()
             .check([] {
                 EXPECT_EQ(currentTab(), selection_tab::campaigns);
                 EXPECT_TRUE(headed("Thieves"));
                 EXPECT_TRUE(textStandsAt(16, 60, "Follow the thieves,", colour::text));
                 EXPECT_TRUE(textStandsAt(16, 92, "Average", colour::text));
                 EXPECT_TRUE(textStandsAt(16, 102, "2 scenarios", colour::text));
                 EXPECT_EQ(pixelAt(228, 56), flatColour(tile::thief));
                 EXPECT_TRUE(textStandsAt(268, 54, "Thieves", colour::face));
                 EXPECT_TRUE(textStandsAt(268, 34, "Intro", colour::edge));
             })
             .key("\r"));
    prefs.campaignChoice = none;
    prefs.scenarioChoice = 4;
    play(Script().check([] { EXPECT_TRUE(headed("Bandit Camp")); }).key("\r"));
    EXPECT_EQ(scenarioRow(game.scenario).name, "Bandit Camp");
}

TEST_F(SelectionTest, ArrowsWrapAroundTheRowsAndTheTabsAndEachTabKeepsItsRow) {
    play(Script()
             .key(keycode::up)
             .check([] { EXPECT_TRUE(headed("Thieves")); })
             .key(keycode::down)
             .check([] { EXPECT_TRUE(headed("Intro")); })
             .key(keycode::down)
             .key(keycode::left)
             .check([] { EXPECT_TRUE(headed("Treasury")); })
             .key(keycode::up)
             .check([] { EXPECT_TRUE(headed("Dungeon")); })
             .key(keycode::down)
             .key(keycode::down)
             .check([] { EXPECT_TRUE(headed("Thieves Den")); })
             .key(keycode::right)
             .check([] { EXPECT_TRUE(headed("Back and Forth")); })
             .key(keycode::right)
             .key("\r"));
    EXPECT_EQ(prefs.campaignChoice, none);
    EXPECT_EQ(prefs.scenarioChoice, 1);
    EXPECT_EQ(scenarioRow(game.scenario).name, "Thieves Den");
}

TEST_F(SelectionTest, TheMouseChoosesTabsAndRowsAndStartsTheGame) {
    prefs.scenarioChoice = 2;
    play(Script()
             .click(listRow(1))
             .check([] { EXPECT_TRUE(headed("Back and Forth")); })
             .click(listRow(4))  // three campaigns only
             .press(listRow(2))
             .release(listRow(0))
             .check([] { EXPECT_TRUE(headed("Back and Forth")); })
             .click(tab(1))
             .check([] { EXPECT_TRUE(headed("Easy")); })
             .click(listRow(6))
             .check([] { EXPECT_TRUE(headed("Dungeon")); })
             .click(tab(1))
             .click(tab(0))
             .press(exitButton)
             .release(startButton)
             .click(startButton));
    EXPECT_EQ(prefs.campaignChoice, 1);
    EXPECT_EQ(prefs.scenarioChoice, 2) << "a campaign leaves the scenario's choice";
    EXPECT_EQ(game.campaign, 1);
}

TEST_F(SelectionTest, ANameMayBeEmptyAndIsTypedUpToSeventeenCharacters) {
    play(Script().type("\b\b\b\b\b\b\b\b\b\b").key("\r"));
    EXPECT_EQ(prefs.heroName, (std::array<char, 21>{}));
    play(Script()
             .type("Sir Q of \"x<8\"")
             .key(keycode::up)
             .type("~!1 more")
             .check([] { EXPECT_TRUE(nameStands("Sir Q of \"x<8\"~!1   ")); })
             .key("\r"));
    EXPECT_EQ(nameText(prefs.heroName), "Sir Q of \"x<8\"~!1");
    EXPECT_EQ(prefs.heroName, game.playerName);
    EXPECT_EQ(game.campaign, 2);
}

TEST_F(SelectionTest, ARestoredNameOfTwentyCharactersIsShownWholeAndCannotGrow) {
    storeName(prefs.heroName, "abcdefghijklmnopqrst");
    play(Script().key("u").check([] { EXPECT_TRUE(nameStands("abcdefghijklmnopqrst ")); }).key("\r"));
    EXPECT_EQ(nameText(prefs.heroName), "abcdefghijklmnopqrst");
    play(Script()
             .type("\b\b\bx\bxy")
             .check([] { EXPECT_TRUE(nameStands("abcdefghijklmnopx   ")); })
             .key("\r"));
    EXPECT_EQ(nameText(prefs.heroName), "abcdefghijklmnopx");
}

TEST_F(SelectionTest, TheCursorBlinksTwiceASecond) {
    int changes = 0;
    Colour last = colour::yellow;
    Script script;
    for (int i = 0; i < 40; ++i)
        script.wait(0.05).check([&] {
            const Colour now = cursorBehind(8);
            EXPECT_TRUE(now == colour::yellow || now == colour::face);
            changes += now == last ? 0 : 1;
            last = now;
        });
    play(script.key("\r"));
    EXPECT_GE(changes, 6);
    EXPECT_LE(changes, 9);
}

TEST_F(SelectionTest, LeavingSavesWithoutTheNewChoiceAlsoWhatIsDamaged) {
    prefs.campaignChoice = -2;
    prefs.scenarioChoice = prefs.GameSpeed = 2147483647;
    prefs.heroName.fill('\x93');
    std::string wanted(reinterpret_cast<const char*>(&prefs), sizeof prefs);
    startScript(Script()
                    .check([] { EXPECT_TRUE(headed("Intro")); })
                    .key(keycode::right)
                    .check([] { EXPECT_TRUE(headed("Treasury")); })
                    .type("\b\b\bx")
                    .press(startButton)
                    .release(exitButton)
                    .click(exitButton));
    EXPECT_THROW(runGameSelection(), script::ProgramEnded);
    finishScript();
    wanted[4] = screen_id::selection;
    EXPECT_EQ(bytesOf(folder + "/Data/DGDG.dat"), wanted) << "leaving keeps the choice before";
}

}  // namespace gloomdeck
