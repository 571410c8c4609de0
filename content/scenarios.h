// The seven scenarios: which terrain each column of a board is dealt from.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "content/locations.h"

namespace gloomdeck {

/// Indices of the scenarios.
namespace scenario_id {
enum Id : std::int32_t { treasury, easy, ruins, dungeon, magicPortals, thievesDen, banditCamp };
}  // namespace scenario_id

struct Scenario {
    scenario_id::Id id;  // its own row
    std::string_view name;
    std::int32_t difficulty;                         // 1 to difficultyCount
    std::array<location_id::Id, 7> columnLocations;  // before shuffling
    std::int32_t trainingAllowed;
    std::int32_t tradingAllowed;
    std::int32_t pictureTile;
};

inline constexpr int difficultyCount = 5;
inline constexpr int scenarioTableSize = 7;
extern const std::array<Scenario, scenarioTableSize> ScenarioTable;

/// The order of the scenario list on the selection screen.
extern const std::array<scenario_id::Id, scenarioTableSize> scenarioListOrder;

/// The row of an index; one out of range has the first row.
const Scenario& scenarioRow(int index);

/// The scenario at a list position; one out of range is the first.
int scenarioAtPosition(int position);

/// "Easy" (1) to "Impossible!" (5); a difficulty outside is named as the nearest end.
std::string_view difficultyName(int difficulty);

}  // namespace gloomdeck
