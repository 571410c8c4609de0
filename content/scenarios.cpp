#include "content/scenarios.h"

#include <algorithm>

#include "rules/tiles.h"

namespace gloomdeck {

namespace {

enum LocationIndex : std::int32_t { cellar, ruins, portal, dungeon, treasury, hideout, easy, alley, crags };

constexpr std::array<std::string_view, 5> difficultyNames{"Easy", "Average", "Hard", "Very Hard",
                                                          "Impossible!"};

}  // namespace

// clang-format off
const std::array<Scenario, scenarioTableSize> ScenarioTable{{
    {.name = "Treasury", .difficulty = 1,
     .columnLocations = {treasury, treasury, treasury, treasury, treasury, treasury, treasury},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::gold},
    {.name = "Easy", .difficulty = 1,
     .columnLocations = {easy, easy, easy, easy, easy, easy, easy},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::skeleton},
    {.name = "Ruins", .difficulty = 3,
     .columnLocations = {ruins, ruins, hideout, ruins, portal, ruins, ruins},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::ghost},
    {.name = "Dungeon", .difficulty = 4,
     .columnLocations = {cellar, dungeon, dungeon, dungeon, dungeon, dungeon, dungeon},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::oozingFilth},
    {.name = "Magic Portals", .difficulty = 4,
     .columnLocations = {portal, portal, portal, portal, portal, portal, portal},
     .trainingAllowed = 1, .tradingAllowed = 1, .pictureTile = tile::portal},
    {.name = "Thieves Den", .difficulty = 1,
     .columnLocations = {alley, alley, alley, hideout, alley, alley, alley},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::thief},
    {.name = "Bandit Camp", .difficulty = 3,
     .columnLocations = {crags, crags, crags, crags, hideout, hideout, hideout},
     .trainingAllowed = 1, .tradingAllowed = 1, .pictureTile = tile::masterThief},
}};
// clang-format on

const std::array<std::int32_t, scenarioTableSize> scenarioListOrder{0, 5, 1, 2, 6, 4, 3};

const Scenario& scenarioRow(int index) {
    return ScenarioTable[static_cast<std::size_t>(index >= 0 && index < scenarioTableSize ? index : 0)];
}

int scenarioAtPosition(int position) {
    return scenarioListOrder[static_cast<std::size_t>(position >= 0 && position < scenarioTableSize ? position
                                                                                                    : 0)];
}

std::string_view difficultyName(int difficulty) {
    return difficultyNames[static_cast<std::size_t>(std::clamp(difficulty, 1, 5) - 1)];
}

}  // namespace gloomdeck
