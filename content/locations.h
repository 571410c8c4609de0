// The nine kinds of terrain from which columns are dealt.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "rules/codes.h"

namespace gloomdeck {

/// Indices of the locations.
namespace location_id {
enum Id : std::int32_t { cellar, ruins, portal, dungeon, treasury, hideout, easy, alley, crags };
}  // namespace location_id

struct Location {
    location_id::Id id;  // its own row
    std::string_view name;
    std::int32_t backgroundTile;
    std::int32_t deckLength;  // its closing The End included
    std::array<std::int32_t, encounterCount> encounterWeights;
};

inline constexpr int locationCount = 9;
extern const std::array<Location, locationCount> LocationTable;

/// The row of an index; one out of range has the first row.
const Location& locationRow(int index);

/// The whole percentage of a code (0 to 23) in a location's deck: its weight's share, rounded, ties to even.
/// The percentages of a deck need not sum to 100.
int dealPercentage(int location, int code);

}  // namespace gloomdeck
