#include "content/campaigns.h"

#include <algorithm>

#include "content/scenarios.h"
#include "shell/tiles.h"

namespace gloomdeck {

namespace {

using enum scenario_id::Id;

}  // namespace

// clang-format off
constexpr std::array<Campaign, campaignCount> CampaignTable{{
    {.name = "Intro", .difficulty = 1, .scenarioCount = 2,
     .stages = {easy, treasury}, .pictureTile = tile::ghost},
    {.name = "Back and Forth", .difficulty = 1, .scenarioCount = 4,
     .stages = {treasury, ruins, treasury, dungeon}, .pictureTile = tile::gold},
    {.name = "Thieves", .difficulty = 2, .scenarioCount = 2,
     .stages = {thievesDen, banditCamp}, .pictureTile = tile::thief},
}};
// clang-format on

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

const Campaign& campaignRow(int index) {
    return CampaignTable[static_cast<std::size_t>(index >= 0 && index < campaignCount ? index : 0)];
}

int stageEntry(const Campaign& campaign, int stage) {
    return campaign.stages[static_cast<std::size_t>(stage >= 0 && stage < mostStages ? stage : 0)];
}

int difficultyWanted(int entry) {
    if (entry >= randomStage) return 0;
    const int difficulty = randomStage - entry;
    return difficulty <= difficultyCount ? difficulty : 1;
}

}  // namespace gloomdeck
