// New games, and campaigns: their stages, their story pages, and damaged ones.
#include <cstring>

#include "content/campaign_flow.h"
#include "content/campaigns.h"
#include "content/game_flow.h"
#include "prefs/switches.h"
#include "rules/show.h"
#include "shell/play/board_end.h"
#include "shell/play/play_view.h"
#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

constexpr int most = 2147483647;

using CampaignTest = GameTest;

TEST_F(CampaignTest, ANewGameStartsWithAFreshHeroAndLeavesWhatIsNotTheGames) {
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

TEST_F(CampaignTest, AStageIsDealtBeforeItsStoryWhichEitherSwitchSkips) {
    seedRolls(3);
    game.campaign = 1;
    startScript(Script().check([] { EXPECT_NE(board(6, bottomRow), enc::Empty); }).key(" "));
    startCampaignStage();
    finishScript();
    setSwitch(Switch::skipText, true);
    startCampaignStage();
    setSwitch(Switch::skipText, false);
    setSwitch(Switch::restartSwitch, true);
    startCampaignStage();
}

TEST_F(CampaignTest, RandomStagesAskForADifficulty) {
    for (int entry = -24; entry <= -20; ++entry) EXPECT_EQ(difficultyWanted(entry), -19 - entry);
    for (const int other : {-25, -most}) EXPECT_EQ(difficultyWanted(other), 1);
}

TEST_F(CampaignTest, DamagedPositionsAreShownAndPlayedWithoutBeingMended) {
    seedRolls(3);
    for (const int damaged : {-most - 1, -2, 3, 99, most}) {
        SCOPED_TRACE(damaged);
        game.campaign = game.campaignStage = game.scenario = damaged;
        prefs.scenarioOver = 1;
        for (int col = 0; col < columnCount; ++col) column(col).finished = 1;
        const std::string before = gameBytes();
        openPlayScreen();
        EXPECT_EQ(gameBytes(), before);
        startScript(Script().key(" ").key(" "));
        startCampaignStage();
        nextCampaignStage();
        finishScript();
    }
}

}  // namespace gloomdeck
