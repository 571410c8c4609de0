#include "content/campaign_flow.h"

#include <algorithm>

#include "content/campaigns.h"
#include "content/deal_board.h"
#include "content/scenarios.h"
#include "content/story_texts.h"
#include "prefs/prefs.h"
#include "rules/dice.h"
#include "rules/game_state.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

constexpr int randomStage = -19;  // entries below ask for a random scenario

bool someScenarioHas(int difficulty) {
    return std::any_of(ScenarioTable.begin(), ScenarioTable.end(),
                       [=](const Scenario& scenario) { return scenario.difficulty == difficulty; });
}

int randomScenarioOf(int difficulty) {
    if (!someScenarioHas(difficulty)) return 0;
    while (true) {
        const int i = Roll(scenarioTableSize) - 1;
        if (scenarioRow(i).difficulty == difficulty) return i;
    }
}

}  // namespace

void startCampaignStage() {
    int entry = stageEntry(campaignRow(game.campaign), game.campaignStage);
    if (entry < randomStage) entry = randomScenarioOf(difficultyWanted(entry));
    buildScenarioBoard(entry);
    if (prefs.restartSwitch || prefs.skipText) return;
    const std::int64_t number = std::int64_t{game.campaignStage} + 1;
    showStory(storyText(game.campaign, static_cast<int>(std::clamp<std::int64_t>(number, 0, 99))));
}

void nextCampaignStage() {
    hideContinue();
    addTo(game.campaignStage, 1);
    startCampaignStage();
}

}  // namespace gloomdeck
