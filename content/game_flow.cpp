// What a new game sets, and when one is over.
#include "content/game_flow.h"

#include "content/campaign_flow.h"
#include "content/deal_board.h"
#include "content/scenarios.h"
#include "prefs/prefs.h"
#include "rules/game_state.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

void makeFreshHero() {
    storeName(game.playerName, nameText(prefs.heroName));
    for (int item = 0; item < itemCount; ++item) count(item) = 0;
    count(keys) = count(torches) = count(health) = 1;
    for (int skill = 0; skill < skillCount; ++skill) level(skill) = 0;
    for (int power = 0; power < powerCount; ++power) turnsLeft(power) = 0;
    game.turns = 0;
}

}  // namespace

void startNewGame() {
    forgetLastGame();
    makeFreshHero();
    game.campaign = prefs.campaignChoice;
    if (game.campaign == none) {
        buildScenarioBoard(scenarioAtPosition(prefs.scenarioChoice));
    } else {
        game.campaignStage = 0;
        startCampaignStage();
    }
    game.campaignWon = 0;
    game.scoreStanding = none;
}

bool isGameOver() { return game.campaign == none ? prefs.scenarioOver != 0 : game.campaignWon != 0; }

}  // namespace gloomdeck
