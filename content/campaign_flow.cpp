// A stage: the scenario that it names or asks for, its board, then its story page.
#include "content/campaign_flow.h"

#include <algorithm>

#include "content/campaigns.h"
#include "content/deal_board.h"
#include "content/scenarios.h"
#include "content/story_texts.h"
#include "prefs/switches.h"
#include "rules/dice.h"
#include "rules/game_state.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

bool someScenarioHas(int difficulty) {
    return std::any_of(ScenarioTable.begin(), ScenarioTable.end(),
                       [=](const Scenario& scenario) { return scenario.difficulty == difficulty; });
}

int randomScenarioOf(int difficulty) {
    if (!someScenarioHas(difficulty)) return scenario_id::treasury;
    while (true) {
        const int i = Roll(scenarioTableSize) - 1;
        if (scenarioRow(i).difficulty == difficulty) return i;
    }
}

}  // namespace

void startCampaignStage() {
    const int entry = stageEntry(campaignRow(game.campaign), game.campaignStage);
    const int difficulty = difficultyWanted(entry);
    buildScenarioBoard(difficulty != 0 ? randomScenarioOf(difficulty) : entry);
    if (switchIsOn(Switch::restartSwitch) || switchIsOn(Switch::skipText)) return;
    showStory(storyText(game.campaign, std::int64_t{game.campaignStage} + 1));
}

void nextCampaignStage() {
    hideContinue();
    addTo(game.campaignStage, 1);
    startCampaignStage();
}

}  // namespace gloomdeck
