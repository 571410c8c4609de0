// What each encounter is worth to the autoplayer.
#pragma once

#include <array>
#include <cstdint>

#include "rules/codes.h"

namespace gloomdeck {

/// What the player may allow: categories 1 to 5 have a switch each, 6 is never taken.
namespace category {
inline constexpr int goodStuff = 1;    // an item or a harmless tile
inline constexpr int fairlyEasy = 2;   // the hero is equipped for it
inline constexpr int obstacle = 3;     // the hero is poorly equipped
inline constexpr int spells = 4;       // no cell is ever given this one
inline constexpr int grief = 5;        // moves, steals or spreads and is not disarmed
inline constexpr int unavailable = 6;  // past the end, in a finished column, or hidden
}  // namespace category

struct AutoplayerRow {
    std::int32_t poweredValue;  // a power disarms it
    std::int32_t baseValue;
    std::int32_t easyValue;   // the hero is well equipped
    std::int32_t hardValue;   // the hero is poorly equipped
    std::int32_t worstValue;  // the hero cannot handle it
    std::int32_t category;
    std::int32_t bottomOnly;  // 1: a column's score looks at the bottom cell only
};

extern const std::array<AutoplayerRow, encounterCount> AutoplayerTable;

/// The row of a code; one outside 0 to 23 has Empty's.
const AutoplayerRow& autoplayerRow(int code);

}  // namespace gloomdeck
