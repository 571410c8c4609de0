#include "content/screens/game_selection.h"

#include "prefs/saved_data.h"
#include "prefs/switches.h"
#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

Point listRow(int row) { return {330, 37 + 10 * row}; }
Point tab(int index) { return {40 + 78 * index, 16}; }

}  // namespace

class SelectionTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        ApplyDefaults();
        setSwitch(Switch::skipText, true);
    }

    static void play(const Script& script) {
        seedRolls(7);
        startScript(script);
        runGameSelection();
        finishScript();
    }
};

TEST_F(SelectionTest, ItOpensAtTheLastChoiceAndArrowsWrapAroundRowsAndTabs) {
    using namespace keycode;
    const std::tuple<std::vector<std::string_view>, int, int> ways[] = {
        {{}, 2, 6},         {{down}, 0, 6},        {{up, up, up}, 2, 6},    {{left}, none, 6},
        {{right}, none, 6}, {{left, right}, 2, 6}, {{left, down}, none, 0}, {{right, up}, none, 5},
    };
    for (const auto& [moves, campaign, scenario] : ways) {
        prefs.campaignChoice = 2;
        prefs.scenarioChoice = 6;
        Script script;
        for (const std::string_view move : moves) script.key(move);
        play(script.key(enter));
        EXPECT_EQ(std::pair(prefs.campaignChoice, prefs.scenarioChoice), std::pair(campaign, scenario));
    }
    play(Script().key(enter));
    EXPECT_EQ(std::pair(prefs.campaignChoice, game.scenario), std::pair(none, 4)) << "the list's sixth";
}

TEST_F(SelectionTest, TheMouseChoosesTabsAndRowsAndStartsTheGame) {
    prefs.scenarioChoice = 2;
    Script script;
    script.click(listRow(1)).click(listRow(4));  // three campaigns only
    script.press(listRow(2)).release(listRow(0)).click(tab(1)).click(tab(1)).click(tab(0));
    play(script.press({164, 208}).release({228, 208}).button(id::done));
    EXPECT_EQ(std::tuple(prefs.campaignChoice, prefs.scenarioChoice, game.campaign), std::tuple(1, 2, 1))
        << "a campaign leaves the scenario's choice";
    play(Script().click(tab(1)).click(listRow(6)).button(id::done));
    EXPECT_EQ(std::pair(prefs.campaignChoice, prefs.scenarioChoice), std::pair(none, 6));
    prefs.campaignChoice = 0;
    play(Script().key(keycode::right).click(listRow(3)).key("\r"));
    EXPECT_EQ(std::pair(prefs.campaignChoice, prefs.scenarioChoice), std::pair(none, 3))
        << "a tab that an arrow chose stays at the next click";
}

TEST_F(SelectionTest, ANameMayBeEmptyAndIsTypedUpToSeventeenCharacters) {
    play(Script().type("\b\b\b\b\b\b\b\b\b\b").key("\r"));
    EXPECT_EQ(prefs.heroName, (std::array<char, 21>{}));
    play(Script().type("Sir Q of \"x<8\"").key(keycode::up).type("~!1 more").key("\r"));
    EXPECT_EQ(nameText(prefs.heroName), "Sir Q of \"x<8\"~!1");
    storeName(prefs.heroName, "abcdefghijklmnopqrst");  // as a data file may have it
    play(Script().key("u").type("\b\b\bx\bxy").key("\r"));
    EXPECT_EQ(nameText(prefs.heroName), "abcdefghijklmnopx");
}

TEST_F(QuickPlayTest, LeavingTheSelectionSavesWithoutTheNewChoiceAlsoWhatIsDamaged) {
    ApplyDefaults();
    prefs.campaignChoice = -2;
    prefs.scenarioChoice = prefs.GameSpeed = 2147483647;
    prefs.heroName.fill('\x93');
    const std::string saved(reinterpret_cast<const char*>(&prefs), sizeof prefs);
    writeDataFile("DGDP.dat", "");
    writeDataFile("DGDG.dat", saved);
    script.passTitle().key(keycode::right);
    EXPECT_EQ(run(script.type("\b\b\bx").button(id::selectionExit)), 0);
    EXPECT_EQ(dataFile("DGDG.dat"), saved);
    EXPECT_EQ(dataFile("DGDP.dat").size(), sizeof game) << "nothing was saved";
}

}  // namespace gloomdeck
