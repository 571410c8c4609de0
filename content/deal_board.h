// Dealing a scenario's board.
#pragma once

namespace gloomdeck {

/// Builds all seven columns and records the scenario. All shuffle draws come first, then each column in the
/// order of the scenario's locations, from its top row down. An index out of range deals the first scenario.
void buildScenarioBoard(int scenario);

}  // namespace gloomdeck
