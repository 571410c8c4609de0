// The boards by name, each column by its terrain.
#include "content/scenarios.h"

#include <algorithm>

#include "platform/table.h"
#include "rules/tiles.h"

namespace gloomdeck {

namespace {

using enum location_id::Id;

constexpr std::array<std::string_view, difficultyCount> difficultyNames{"Easy", "Average", "Hard",
                                                                        "Very Hard", "Impossible!"};

}  // namespace

// clang-format off
constexpr std::array<Scenario, scenarioTableSize> ScenarioTable{{
    {.id = scenario_id::treasury, .name = "Treasury", .difficulty = 1,
     .columnLocations = {treasury, treasury, treasury, treasury, treasury, treasury, treasury},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::gold},
    {.id = scenario_id::easy, .name = "Easy", .difficulty = 1,
     .columnLocations = {easy, easy, easy, easy, easy, easy, easy},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::skeleton},
    {.id = scenario_id::ruins, .name = "Ruins", .difficulty = 3,
     .columnLocations = {ruins, ruins, hideout, ruins, portal, ruins, ruins},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::ghost},
    {.id = scenario_id::dungeon, .name = "Dungeon", .difficulty = 4,
     .columnLocations = {cellar, dungeon, dungeon, dungeon, dungeon, dungeon, dungeon},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::oozingFilth},
    {.id = scenario_id::magicPortals, .name = "Magic Portals", .difficulty = 4,
     .columnLocations = {portal, portal, portal, portal, portal, portal, portal},
     .trainingAllowed = 1, .tradingAllowed = 1, .pictureTile = tile::portal},
    {.id = scenario_id::thievesDen, .name = "Thieves Den", .difficulty = 1,
     .columnLocations = {alley, alley, alley, hideout, alley, alley, alley},
     .trainingAllowed = 1, .tradingAllowed = 0, .pictureTile = tile::thief},
    {.id = scenario_id::banditCamp, .name = "Bandit Camp", .difficulty = 3,
     .columnLocations = {crags, crags, crags, crags, hideout, hideout, hideout},
     .trainingAllowed = 1, .tradingAllowed = 1, .pictureTile = tile::masterThief},
}};
// clang-format on
static_assert(rowsStandAtTheirIndex(ScenarioTable, &Scenario::id));

constexpr std::array<scenario_id::Id, scenarioTableSize> scenarioListOrder{
    scenario_id::treasury,   scenario_id::thievesDen,   scenario_id::easy,   scenario_id::ruins,
    scenario_id::banditCamp, scenario_id::magicPortals, scenario_id::dungeon};

namespace {

constexpr bool listHasEveryScenario() {
    return std::all_of(ScenarioTable.begin(), ScenarioTable.end(), [](const Scenario& scenario) {
        return std::find(scenarioListOrder.begin(), scenarioListOrder.end(), scenario.id) !=
               scenarioListOrder.end();
    });
}
static_assert(listHasEveryScenario());

}  // namespace

const Scenario& scenarioRow(int index) { return rowAt(ScenarioTable, index); }

int scenarioAtPosition(int position) { return rowAt(scenarioListOrder, position); }

std::string_view difficultyName(int difficulty) {
    return difficultyNames[static_cast<std::size_t>(std::clamp(difficulty, 1, difficultyCount) - 1)];
}

}  // namespace gloomdeck
