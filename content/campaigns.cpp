#include "content/campaigns.h"

#include "rules/tiles.h"

namespace gloomdeck {

namespace {

enum ScenarioIndex : std::int32_t {
    treasury = 0,
    easy = 1,
    ruins = 2,
    dungeon = 3,
    thievesDen = 5,
    banditCamp = 6
};

}  // namespace

// clang-format off
const std::array<Campaign, campaignCount> CampaignTable{{
    {.name = "Intro", .difficulty = 1, .scenarioCount = 2,
     .stages = {easy, treasury}, .pictureTile = tile::ghost},
    {.name = "Back and Forth", .difficulty = 1, .scenarioCount = 4,
     .stages = {treasury, ruins, treasury, dungeon}, .pictureTile = tile::gold},
    {.name = "Thieves", .difficulty = 2, .scenarioCount = 2,
     .stages = {thievesDen, banditCamp}, .pictureTile = tile::thief},
}};
// clang-format on

const Campaign& campaignRow(int index) {
    return CampaignTable[static_cast<std::size_t>(index >= 0 && index < campaignCount ? index : 0)];
}

int stageEntry(const Campaign& campaign, int stage) {
    return campaign.stages[static_cast<std::size_t>(stage >= 0 && stage < mostStages ? stage : 0)];
}

int difficultyWanted(int entry) { return entry >= -24 && entry <= -20 ? -19 - entry : 1; }

}  // namespace gloomdeck
