#include "content/game_flow.h"

#include <cstring>

#include "platform/palette.h"
#include "shell/layout.h"
#include "shell/tiles.h"
#include "tests/support/script.h"

namespace gloomdeck {

using GameFlowTest = GameTest;

TEST_F(GameFlowTest, ANewGameStartsWithAFreshHeroAndLeavesWhatIsNotTheGames) {
    seedRolls(11);
    game.playerName.fill('x');
    game.inventory.fill(55);
    game.skills.fill(55);
    game.powers.fill(55);
    game.campaign = game.turns = game.scoreStanding = 4;
    game.campaignStage = 3;
    game.campaignWon = 1;
    prefs.campaignChoice = none;
    prefs.scenarioChoice = 1;
    prefs.heroName = {'B', 'o', '\0', 'r', 'e', 's', 't'};
    ui.targetMode = target::bomb;
    ui.messagePosted = true;
    ShowMessage("old", 0);
    widget(id::continueGame).hidden = false;
    itemType(keys).highlightTurns = 1;

    GameState wanted = game;
    startNewGame();

    wanted.playerName = {'B', 'o'};
    wanted.inventory = {1, 1, 0, 0, 0, 0, 0, 0, 1, 55};
    wanted.skills = {0, 0, 0, 0, 0, 0, 55};
    wanted.powers = {0, 0, 0, 55};
    wanted.columns = game.columns;
    wanted.scenario = 5;  // Thieves Den
    wanted.campaign = wanted.scoreStanding = none;
    wanted.campaignWon = wanted.turns = 0;
    EXPECT_EQ(std::memcmp(&game, &wanted, sizeof game), 0);
    EXPECT_EQ(ui.targetMode, target::none);
    EXPECT_FALSE(ui.messagePosted);
    EXPECT_EQ(newestMessage(), "");
    EXPECT_TRUE(widget(id::continueGame).hidden);
    EXPECT_EQ(itemType(keys).highlightTurns, 1);
}

TEST_F(GameFlowTest, TheTitleLineNamesTheScenarioAndTheGoldPictureShowsWhatItAllows) {
    game.campaign = game.campaignStage = 1;
    game.scenario = 2;
    openPlayScreen();
    EXPECT_TRUE(textStandsAt(8, 10, "Back and Forth (2/4) - Ruins", colour::white));
    EXPECT_EQ(pixelAt(260, 120), flatColour(tile::goldTraining));
    game.campaign = none;
    game.scenario = 4;
    openPlayScreen();
    EXPECT_TRUE(textStandsAt(8, 10, "Magic Portals  ", colour::white));
    EXPECT_EQ(pixelAt(260, 120), flatColour(tile::goldBoth));
}

TEST_F(GameFlowTest, OpeningTheScreenChangesNeitherRecordsNorHighlightsAndHintsOnTheFirstTurn) {
    board(3, 2) = enc::HypnoEye;
    rolls({{30, 15}, {30, 15}});  // a beam each time: the powers do not draw the eye's column once more
    for (game.turns = 0; game.turns < 2; ++game.turns) {
        const std::string before = gameBytes();
        clearMessages();
        openPlayScreen();
        EXPECT_EQ(gameBytes(), before);
        EXPECT_EQ(newestMessage(), game.turns == 0 ? "Click on the bottom row of the map grid above." : "");
    }
    EXPECT_EQ(itemType(keys).highlightTurns, -1);
}

}  // namespace gloomdeck
