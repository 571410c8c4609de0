// The game in progress: one record, which is also the game file, byte for byte.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "rules/codes.h"

namespace gloomdeck {

inline constexpr int columnCount = 7;
inline constexpr int rowCount = 7;
inline constexpr int bottomRow = rowCount - 1;  ///< the row that the hero meets

struct Column {
    std::int32_t location;              // index into LocationTable
    std::int32_t drawn;                 // how often the column has advanced
    std::array<std::int32_t, 8> cells;  // encounter codes, row 0 at the top; the eighth is reserved
    std::uint32_t finished : 1;         // The End has been met
    std::uint32_t unusedFlags : 31;
};

struct GameState {
    std::array<char, 21> playerName;  // zero-terminated
    std::array<char, 3> padding;
    std::array<Column, 8> columns;  // left to right; the eighth is reserved
    std::array<std::int32_t, 10> inventory;
    std::array<std::int32_t, 7> skills;  // percent
    std::array<std::int32_t, 4> powers;  // turns left
    std::int32_t campaign;               // -1: a single scenario is played
    std::int32_t campaignStage;          // from 0
    std::int32_t scenario;
    std::uint32_t campaignWon : 1;
    std::uint32_t unusedFlags : 31;
    std::int32_t turns;
    std::int32_t scoreStanding;
};

static_assert(sizeof(Column) == 44 && sizeof(GameState) == 484 && std::is_trivially_copyable_v<GameState>);
static_assert(offsetof(Column, drawn) == 4 && offsetof(Column, cells) == 8);
static_assert(offsetof(GameState, columns) == 24 && offsetof(GameState, inventory) == 376);
static_assert(offsetof(GameState, skills) == 416 && offsetof(GameState, powers) == 444);
static_assert(offsetof(GameState, campaign) == 460 && offsetof(GameState, scenario) == 468);
static_assert(offsetof(GameState, turns) == 476 && offsetof(GameState, scoreStanding) == 480);

extern GameState game;

// Views by plain index; what is handed in must be in range.

inline Column& column(int col) { return game.columns[static_cast<std::size_t>(col)]; }
inline std::int32_t& cell(int col, int row) { return column(col).cells[static_cast<std::size_t>(row)]; }
inline std::int32_t& count(int item) { return game.inventory[static_cast<std::size_t>(item)]; }
inline std::int32_t& level(int skill) { return game.skills[static_cast<std::size_t>(skill)]; }
inline std::int32_t& turnsLeft(int power) { return game.powers[static_cast<std::size_t>(power)]; }
inline bool isActive(int power) { return turnsLeft(power) > 0; }

/// Adds as the record does: a sum out of range wraps around, so that a damaged file cannot stop the game.
inline void addTo(std::int32_t& value, std::int32_t n) {
    value = static_cast<std::int32_t>(static_cast<std::uint32_t>(value) + static_cast<std::uint32_t>(n));
}

}  // namespace gloomdeck
