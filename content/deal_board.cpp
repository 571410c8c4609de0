// The shuffle of a scenario's columns, and their deal.
#include "content/deal_board.h"

#include <array>

#include "content/scenarios.h"
#include "prefs/prefs.h"
#include "rules/board.h"
#include "rules/dice.h"

namespace gloomdeck {

namespace {

using Slots = std::array<int, columnCount>;

// Which column each of the scenario's locations goes to.
Slots shuffledColumns() {
    Slots slot;
    slot.fill(none);
    for (int i = 0; i < columnCount; ++i) {
        int j = Roll(columnCount) - 1;
        while (slot[static_cast<std::size_t>(j)] != none) j = Roll(columnCount) - 1;
        slot[static_cast<std::size_t>(j)] = i;
    }
    return slot;
}

}  // namespace

void buildScenarioBoard(int scenario) {
    game.scenario = scenario;
    const Slots slot = shuffledColumns();
    const Scenario& row = scenarioRow(scenario);
    for (std::size_t i = 0; i < slot.size(); ++i) InitColumn(slot[i], row.columnLocations[i]);
    prefs.scenarioOver = 0;
}

}  // namespace gloomdeck
