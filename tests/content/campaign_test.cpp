// Campaigns: their stages, their story pages, and the hero who goes through them.
#include <cstring>

#include "content/board_end.h"
#include "content/campaign_flow.h"
#include "content/campaigns.h"
#include "content/game_flow.h"
#include "content/locations.h"
#include "content/scenarios.h"
#include "content/story_texts.h"
#include "platform/input.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

constexpr int backAndForth = 1;

bool storyStands(const std::string& firstLine) {
    return textStandsAt(16, 48, firstLine, colour::text) &&
           textStandsAt(8, 246, " space or click to continue", colour::text);
}

}  // namespace

class CampaignTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        seedRolls(3);
        game.campaign = backAndForth;
    }
    void TearDown() override {
        rolls({});
        GameTest::TearDown();
    }

    static void clearBoard() {
        for (int col = 0; col < columnCount; ++col) column(col).finished = 1;
        prefs.scenarioOver = 1;
    }
};

TEST_F(CampaignTest, AStageIsDealtBeforeItsStoryWhichWaitsForSpaceAndShowsTheBoardAfterwards) {
    startScript(Script()
                    .key("x")
                    .wait(60)
                    .check([] {
                        EXPECT_TRUE(storyStands("You have gained entry to"));
                        EXPECT_TRUE(textStandsAt(16, 60, "the treasury. Take as much", colour::text));
                        EXPECT_EQ(locationRow(column(6).location).name, "Treasury");
                        EXPECT_EQ(pixelAt(7, 39), colour::brown);
                    })
                    .key(" "));
    startCampaignStage();
    finishScript();
    EXPECT_EQ(pixelAt(7, 39), colour::white);
    EXPECT_EQ(pixelAt(9, 41), flatColour(tile::marble));
}

TEST_F(CampaignTest, EitherSwitchSkipsTheStory) {
    prefs.skipText = 1;
    startCampaignStage();
    prefs.skipText = 0;
    prefs.restartSwitch = 1;
    startCampaignStage();
    EXPECT_NE(pixelAt(7, 39), colour::brown);
}

TEST_F(CampaignTest, RandomStagesAskForADifficulty) {
    for (int entry = -24; entry <= -20; ++entry) EXPECT_EQ(difficultyWanted(entry), -19 - entry);
    for (const int other : {-25, -2147483647}) EXPECT_EQ(difficultyWanted(other), 1);
}

TEST_F(CampaignTest, TheHeroGoesOnToTheNextStageAndTheContinueButtonGoes) {
    prefs.skipText = 1;
    game.inventory = {4, 5, 6, 7, 8, 9, 10, 11, -3, 12};
    game.skills = {5, 10, 15, 20, 25, 30, 0};
    game.powers = {1, 2, 3, 0};
    game.turns = 77;
    clearBoard();
    showScenarioEnd();
    GameState wanted = game;
    nextCampaignStage();
    wanted.columns = game.columns;
    wanted.campaignStage = 1;
    wanted.scenario = 2;
    EXPECT_EQ(std::memcmp(&game, &wanted, sizeof game), 0);
    EXPECT_TRUE(widget(id::continueGame).hidden);
    EXPECT_EQ(prefs.scenarioOver, 0);
}

TEST_F(CampaignTest, TheEndOfABoardSaysWhatIsWonAndOffersWhatIsNext) {
    struct Case {
        int campaign, stage;
        const char* banner;
        bool goesOn, over;
    };
    for (const Case& c :
         {Case{none, 0, "Congratulations!", false, true}, Case{backAndForth, 2, "Campaign...", true, false},
          Case{backAndForth, 3, "Campaign Won!", false, true}, Case{0, 1, "Campaign Won!", false, true},
          Case{none, 3, "Congratulations!", false, true}}) {
        SCOPED_TRACE(testing::Message() << c.campaign << ", stage " << c.stage);
        layOutWidgets();
        game.campaign = c.campaign;
        game.campaignStage = c.stage;
        game.campaignWon = 0;
        game.turns = 10;
        clearBoard();
        openPlayScreen();  // as after a restart on a cleared board
        EXPECT_TRUE(textStandsAt(16, 245, c.banner, colour::text));
        EXPECT_TRUE(textStandsAt(16, 29, "Score: 0", colour::text));
        EXPECT_EQ(widget(id::continueGame).hidden, !c.goesOn);
        EXPECT_EQ(isGameOver(), c.over);
        EXPECT_EQ(pixelAt(151, 241) == colour::face, c.goesOn);
        EXPECT_EQ(pixelAt(8, 263), flatColour(tile::cellar)) << "the band ends above the board's last row";
    }
    EXPECT_EQ(widget(id::continueGame).caption, "Continue");
    game.campaign = backAndForth;
    showScenarioEnd();
    game.campaignStage = 1;
    showScenarioEnd();
    EXPECT_EQ(widget(id::continueGame).caption, "Continue ");
}

TEST_F(CampaignTest, DamagedPositionsAreShownAndPlayedWithoutBeingMended) {
    constexpr int most = 2147483647;
    for (const int damaged : {-most - 1, -2, 3, 99, most}) {
        SCOPED_TRACE(damaged);
        game.campaign = game.campaignStage = game.scenario = damaged;
        clearBoard();
        openPlayScreen();
        EXPECT_EQ(game.campaign, damaged);
        EXPECT_EQ(game.campaignStage, damaged);
        EXPECT_EQ(game.scenario, damaged);
        startScript(Script().key(" ").key(" "));
        startCampaignStage();
        nextCampaignStage();
        finishScript();
    }
}

}  // namespace gloomdeck
