#include "content/game_flow.h"

#include <cstring>

#include "content/scenarios.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/tiles.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

class GameFlowTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        seedRolls(11);
        prefs.skipText = 1;
    }
    void TearDown() override {
        rolls({});
        GameTest::TearDown();
    }
};

TEST_F(GameFlowTest, ANewGameStartsWithAFreshHeroAndLeavesWhatIsNotTheGames) {
    game.playerName.fill('x');
    game.inventory.fill(55);
    game.skills.fill(55);
    game.powers.fill(55);
    game.campaign = 2;
    game.campaignStage = 3;
    game.campaignWon = 1;
    game.turns = 99;
    game.scoreStanding = 4;
    prefs.scenarioOver = 1;
    prefs.campaignChoice = none;
    prefs.scenarioChoice = 1;
    prefs.heroName = {'B', 'o', '\0', 'r', 'e', 's', 't'};
    ui.targetMode = target::bomb;
    ui.messagePosted = true;
    ShowMessage("old", 0);
    widget(id::continueGame).hidden = false;
    itemType(keys).highlightTurns = 1;
    itemType(keys).turnChange = -3;
    skillType(toughness).highlightTurns = 2;

    startNewGame();

    EXPECT_EQ(game.playerName, (std::array<char, 21>{'B', 'o'})) << "zero-filled to its end";
    EXPECT_EQ(game.inventory, (std::array<std::int32_t, 10>{1, 1, 0, 0, 0, 0, 0, 0, 1, 55}));
    EXPECT_EQ(game.skills, (std::array<std::int32_t, 7>{0, 0, 0, 0, 0, 0, 55}));
    EXPECT_EQ(game.powers, (std::array<std::int32_t, 4>{0, 0, 0, 55}));
    EXPECT_EQ(scenarioRow(game.scenario).name, "Thieves Den");
    EXPECT_EQ(game.campaign, none);
    EXPECT_EQ(game.campaignStage, 3) << "a single scenario leaves it";
    EXPECT_EQ(game.campaignWon, 0);
    EXPECT_EQ(game.turns, 0);
    EXPECT_EQ(game.scoreStanding, none);
    EXPECT_EQ(prefs.scenarioOver, 0);
    EXPECT_EQ(ui.targetMode, target::none);
    EXPECT_FALSE(ui.messagePosted);
    EXPECT_EQ(newestMessage(), "");
    EXPECT_TRUE(widget(id::continueGame).hidden);
    EXPECT_EQ(itemType(keys).highlightTurns, 1);
    EXPECT_EQ(itemType(keys).turnChange, -3);
    EXPECT_EQ(skillType(toughness).highlightTurns, 2);
}

TEST_F(GameFlowTest, TheTitleLineNamesTheScenarioAndTheStageOfItsCampaign) {
    game.campaign = 1;
    game.campaignStage = 1;
    game.scenario = 2;
    openPlayScreen();
    EXPECT_TRUE(textStandsAt(8, 10, "Back and Forth (2/4) - Ruins", colour::white));
    game.campaign = none;
    game.scenario = 4;
    openPlayScreen();
    EXPECT_TRUE(textStandsAt(8, 10, "Magic Portals  ", colour::white));
}

TEST_F(GameFlowTest, TheGoldRowShowsWhatTheScenarioAllows) {
    for (int scenario = 0; scenario < scenarioTableSize; ++scenario) {
        game.scenario = scenario;
        openPlayScreen();
        const bool both = scenario == 4 || scenario == 6;
        EXPECT_TRUE(TrainingAvailable()) << scenario;
        EXPECT_EQ(TradingAvailable(), both) << scenario;
        EXPECT_EQ(pixelAt(260, 120), flatColour(both ? tile::goldBoth : tile::goldTraining)) << scenario;
    }
}

TEST_F(GameFlowTest, OpeningTheScreenDrawsAllOfItAndChangesNeitherRecordsNorHighlights) {
    board(3, 2) = enc::HypnoEye;
    rolls(
        {{30, 15}, {30, 15}});  // a beam each time: the powers' boxes do not draw the eye's column once more
    const GameState before = game;
    openPlayScreen();
    EXPECT_EQ(newestMessage(), "Click on the bottom row of the map grid above.");
    EXPECT_TRUE(ui.messagePosted);
    EXPECT_EQ(std::memcmp(&game, &before, sizeof game), 0);
    EXPECT_EQ(itemType(keys).highlightTurns, -1);
    EXPECT_EQ(pixelAt(277, 200), colour::black);
    EXPECT_EQ(pixelAt(398, 328), colour::white);
    EXPECT_EQ(pixelAt(216, 288), colour::panel) << "no mode icon";
    EXPECT_EQ(pixelAt(200, 428), colour::panel) << "no information area";
    clearMessages();
    game.turns = 1;
    openPlayScreen();
    EXPECT_EQ(newestMessage(), "") << "the hint is for the first turn";
    EXPECT_EQ(leftoverRolls() + missingRolls(), 0);
}

}  // namespace gloomdeck
