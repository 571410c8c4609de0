// The seven scenarios: which terrain each column of a board is dealt from.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace gloomdeck {

struct Scenario {
    std::string_view name;
    std::int32_t difficulty;                      // 1 to 5
    std::array<std::int32_t, 7> columnLocations;  // before shuffling
    std::int32_t trainingAllowed;
    std::int32_t tradingAllowed;
    std::int32_t pictureTile;
};

inline constexpr int scenarioTableSize = 7;
extern const std::array<Scenario, scenarioTableSize> ScenarioTable;

/// The order of the scenario list on the selection screen, as indices into ScenarioTable.
extern const std::array<std::int32_t, scenarioTableSize> scenarioListOrder;

/// The row of an index; one out of range has the first row.
const Scenario& scenarioRow(int index);

/// The scenario at a list position; one out of range is the first.
int scenarioAtPosition(int position);

/// "Easy" (1) to "Impossible!" (5); a difficulty outside is named as the nearest end.
std::string_view difficultyName(int difficulty);

}  // namespace gloomdeck
