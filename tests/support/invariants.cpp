#include "tests/support/invariants.h"

#include <algorithm>
#include <limits>

#include "content/campaigns.h"
#include "content/locations.h"
#include "content/scenarios.h"
#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "rules/game_state.h"
#include "rules/hero.h"

namespace gloomdeck {

std::string brokenInvariant() {
    constexpr int unlimited = std::numeric_limits<int>::max();
    std::string found;
    const auto expect = [&](const char* what, int index, std::int64_t value, int lowest, int highest) {
        if (!found.empty() || (value >= lowest && value <= highest)) return;
        found = std::string(what) + " " + std::to_string(index) + " is " + std::to_string(value);
    };
    for (int col = 0; col < columnCount; ++col) {
        const Column& c = column(col);
        const int location = std::clamp(c.location, 0, locationCount - 1);
        expect("the location of column", col, c.location, location, location);
        expect("drawn of column", col, c.drawn, 0, locationRow(location).deckLength);
        expect("unusedFlags of column", col, c.unusedFlags, 0, 0);
        for (int row = 0; row < rowCount; ++row)
            expect("the code of cell", rowCount * col + row, cell(col, row), 0, encounterCount - 1);
    }
    for (int item = 0; item < itemCount; ++item)
        if (item != health) expect("the count of item", item, count(item), 0, unlimited);
    for (int skill = 0; skill < skillCount; ++skill) expect("skill", skill, level(skill), 0, highestSkill);
    for (int power = 0; power < powerCount; ++power) expect("power", power, turnsLeft(power), 0, unlimited);
    expect("the end of a name", 0, game.playerName.back() | prefs.heroName.back(), 0, 0);
    expect("campaign", 0, game.campaign, -1, campaignCount - 1);
    expect("campaignStage", 0, game.campaignStage, 0, mostStages - 1);
    expect("scenario", 0, game.scenario, 0, scenarioTableSize - 1);
    expect("turns", 0, game.turns, 0, unlimited);
    expect("GameSpeed", 0, prefs.GameSpeed, 0, speedCount - 1);
    expect("unusedFlags", 0, game.unusedFlags | prefs.unusedFlags | (prefs.switches & ~everySwitch), 0, 0);
    return found;
}

}  // namespace gloomdeck
