// Campaigns: their stages, their story pages, and the hero who goes through them.
#include <cstring>

#include "content/board_end.h"
#include "content/campaign_flow.h"
#include "content/campaigns.h"
#include "content/game_flow.h"
#include "platform/palette.h"
#include "shell/layout.h"
#include "shell/tiles.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

constexpr int backAndForth = 1;
constexpr int most = 2147483647;

void clearBoard() {
    for (int col = 0; col < columnCount; ++col) column(col).finished = 1;
    prefs.scenarioOver = 1;
}

}  // namespace

using CampaignTest = GameTest;

TEST_F(CampaignTest, AStageIsDealtBeforeItsStoryWhichEitherSwitchSkips) {
    seedRolls(3);
    game.campaign = backAndForth;
    startScript(Script().check([] { EXPECT_NE(board(6, bottomRow), enc::Empty); }).key(" "));
    startCampaignStage();
    finishScript();
    EXPECT_EQ(pixelAt(9, 41), flatColour(tile::marble)) << "the board is shown afterwards";
    prefs.skipText = 1;
    startCampaignStage();
    prefs.skipText = 0;
    prefs.restartSwitch = 1;
    startCampaignStage();
}

TEST_F(CampaignTest, RandomStagesAskForADifficulty) {
    for (int entry = -24; entry <= -20; ++entry) EXPECT_EQ(difficultyWanted(entry), -19 - entry);
    for (const int other : {-25, -most}) EXPECT_EQ(difficultyWanted(other), 1);
}

TEST_F(CampaignTest, TheHeroGoesOnToTheNextStageAndTheContinueButtonGoes) {
    seedRolls(3);
    prefs.skipText = 1;
    game.campaign = backAndForth;
    giveHero(7);
    game.turns = 77;
    clearBoard();
    showScenarioEnd();
    EXPECT_EQ(widget(id::continueGame).caption, "Continue ");
    GameState wanted = game;
    nextCampaignStage();
    wanted.columns = game.columns;
    wanted.campaignStage = 1;
    wanted.scenario = 2;
    EXPECT_EQ(std::memcmp(&game, &wanted, sizeof game), 0);
    EXPECT_TRUE(widget(id::continueGame).hidden);
}

TEST_F(CampaignTest, TheEndOfABoardSaysWhatIsWonAndOffersWhatIsNext) {
    struct Case {
        int campaign, stage;
        const char* banner;
        bool goesOn;
    };
    for (const Case& c :
         {Case{none, 3, "Congratulations!", false}, Case{backAndForth, 2, "Campaign...", true},
          Case{backAndForth, 3, "Campaign Won!", false}, Case{0, 1, "Campaign Won!", false}}) {
        SCOPED_TRACE(testing::Message() << c.campaign << ", stage " << c.stage);
        layOutWidgets();
        game.campaign = c.campaign;
        game.campaignStage = c.stage;
        game.campaignWon = 0;
        clearBoard();
        openPlayScreen();  // as after a restart on a cleared board
        EXPECT_TRUE(textStandsAt(16, 245, c.banner, colour::text));
        EXPECT_EQ(widget(id::continueGame).hidden, !c.goesOn);
        EXPECT_EQ(isGameOver(), !c.goesOn);
    }
}

TEST_F(CampaignTest, DamagedPositionsAreShownAndPlayedWithoutBeingMended) {
    seedRolls(3);
    for (const int damaged : {-most - 1, -2, 3, 99, most}) {
        SCOPED_TRACE(damaged);
        game.campaign = game.campaignStage = game.scenario = damaged;
        clearBoard();
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
