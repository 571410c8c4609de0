#include "tests/support/invariants.h"

#include "content/campaigns.h"
#include "content/locations.h"
#include "content/scenarios.h"
#include "prefs/prefs.h"
#include "rules/game_state.h"

namespace gloomdeck {

namespace {

constexpr int highestSkill = 95;

std::string broken(const char* what, int index, std::int64_t value) {
    return std::string(what) + " " + std::to_string(index) + " is " + std::to_string(value);
}

bool isWithin(std::int64_t value, std::int64_t lowest, std::int64_t highest) {
    return value >= lowest && value <= highest;
}

std::string brokenColumn(int col) {
    const Column& c = column(col);
    if (!isWithin(c.location, 0, locationCount - 1)) return broken("the location of column", col, c.location);
    if (!isWithin(c.drawn, 0, locationRow(c.location).deckLength))
        return broken("drawn of column", col, c.drawn);
    if (c.unusedFlags != 0) return broken("unusedFlags of column", col, c.unusedFlags);
    for (int row = 0; row < rowCount; ++row)
        if (!isWithin(cell(col, row), 0, enc::count - 1))
            return broken("the code of cell", rowCount * col + row, cell(col, row));
    return {};
}

std::string brokenHero() {
    for (int item = 0; item < itemCount; ++item)
        if (item != health && count(item) < 0) return broken("the count of item", item, count(item));
    for (int skill = 0; skill < skillCount; ++skill)
        if (!isWithin(level(skill), 0, highestSkill)) return broken("skill", skill, level(skill));
    for (int power = 0; power < powerCount; ++power)
        if (turnsLeft(power) < 0) return broken("power", power, turnsLeft(power));
    return game.playerName.back() == '\0' ? std::string() : "the hero's name does not end";
}

std::string brokenProgress() {
    if (game.unusedFlags != 0) return broken("unusedFlags of game", 0, game.unusedFlags);
    if (!isWithin(game.campaign, -1, campaignCount - 1)) return broken("campaign", 0, game.campaign);
    if (!isWithin(game.campaignStage, 0, mostStages - 1))
        return broken("campaignStage", 0, game.campaignStage);
    if (!isWithin(game.scenario, 0, scenarioTableSize - 1)) return broken("scenario", 0, game.scenario);
    return game.turns < 0 ? broken("turns", 0, game.turns) : std::string();
}

std::string brokenPrefs() {
    if (!isWithin(prefs.GameSpeed, 0, speedCount - 1)) return broken("GameSpeed", 0, prefs.GameSpeed);
    if (prefs.unusedFlags != 0) return broken("unusedFlags of prefs", 0, prefs.unusedFlags);
    if (prefs.unusedSwitches != 0) return broken("unusedSwitches", 0, prefs.unusedSwitches);
    return prefs.heroName.back() == '\0' ? std::string() : "the preferred name does not end";
}

}  // namespace

std::string brokenInvariant() {
    for (int col = 0; col < columnCount; ++col)
        if (std::string why = brokenColumn(col); !why.empty()) return why;
    for (const auto part : {brokenHero, brokenProgress, brokenPrefs})
        if (std::string why = part(); !why.empty()) return why;
    return {};
}

}  // namespace gloomdeck
