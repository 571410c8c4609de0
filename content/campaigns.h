// The three campaigns: scenarios played one after the other by the same hero.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "content/scenarios.h"
#include "rules/tiles.h"

namespace gloomdeck {

inline constexpr int mostStages = 8;

struct Campaign {
    std::string_view name;
    std::int32_t difficulty;                      // 1 to 5
    std::int32_t scenarioCount;                   // 1 to 8 stages
    std::array<std::int32_t, mostStages> stages;  // a scenario, or what difficultyWanted reads
    std::int32_t pictureTile;
};

inline constexpr int campaignCount = 3;
// clang-format off
inline constexpr std::array<Campaign, campaignCount> CampaignTable{{
    {.name = "Intro", .difficulty = 1, .scenarioCount = 2,
     .stages = {scenario_id::easy, scenario_id::treasury}, .pictureTile = tile::ghost},
    {.name = "Back and Forth", .difficulty = 1, .scenarioCount = 4,
     .stages = {scenario_id::treasury, scenario_id::ruins, scenario_id::treasury, scenario_id::dungeon},
     .pictureTile = tile::gold},
    {.name = "Thieves", .difficulty = 2, .scenarioCount = 2,
     .stages = {scenario_id::thievesDen, scenario_id::banditCamp}, .pictureTile = tile::thief},
}};
// clang-format on

/// The row of an index; one out of range has the first row.
const Campaign& campaignRow(int index);

/// The entry of a stage; a stage out of range has the first.
int stageEntry(const Campaign& campaign, int stage);

/// The difficulty of which a stage entry wants a random scenario: 1 to 5 for -20 to -24, 1 for what is lower;
/// 0 for every other entry, which names the scenario itself.
int difficultyWanted(int entry);

}  // namespace gloomdeck
