// What a stage entry means: a scenario, or a random one of a difficulty.
#include "content/campaigns.h"

#include <algorithm>

#include "content/scenarios.h"
#include "platform/table.h"
#include "rules/tiles.h"

namespace gloomdeck {

namespace {

// A stage entry below it asks for a random scenario: 1 below for difficulty 1, and so on.
constexpr int randomStage = -19;

constexpr bool everyStageNamesAScenario() {
    return std::all_of(CampaignTable.begin(), CampaignTable.end(), [](const Campaign& campaign) {
        return campaign.scenarioCount >= 1 && campaign.scenarioCount <= mostStages &&
               std::all_of(campaign.stages.begin(), campaign.stages.end(), [](int entry) {
                   return entry < scenarioTableSize && entry >= randomStage - difficultyCount &&
                          (entry >= 0 || entry < randomStage);
               });
    });
}
static_assert(everyStageNamesAScenario());

}  // namespace

const Campaign& campaignRow(int index) { return rowAt(CampaignTable, index); }

int stageEntry(const Campaign& campaign, int stage) { return rowAt(campaign.stages, stage); }

int difficultyWanted(int entry) {
    if (entry >= randomStage) return 0;
    const int difficulty = randomStage - entry;
    return difficulty <= difficultyCount ? difficulty : 1;
}

}  // namespace gloomdeck
