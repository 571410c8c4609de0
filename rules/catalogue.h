// The catalogue: what every encounter, monster, item, skill and power is called, looks like and does.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "rules/codes.h"

namespace gloomdeck {

inline constexpr std::int32_t never = -1;  ///< a spell chance to which no skill is added

struct EncounterType {
    enc::Code code;  // its own row
    std::string_view name;
    std::int32_t tile;
    bool ghostMayEnter;   // a fleeing Ghost or a teleporting Demon may replace it
    bool filthMaySpread;  // Oozing Filth may spread onto it
    std::int32_t sunChance;
    std::int32_t shieldChance;
    std::int32_t lightningChance;
    std::int32_t monster;  // row of the monster table, or none
    std::string_view description;
};

struct MonsterType {
    std::int32_t healthThreshold;  // health must be above it to fight
    std::array<std::int32_t, 3> dice;
    std::int32_t bonus;
    std::int32_t becomes;  // the code that takes the cell, or none for Empty
};

struct ItemType {
    std::string_view name;
    std::int32_t tile;
    bool usable;
    std::string_view description;
    std::int32_t highlightTurns;  // board turns left of the row's highlight
    std::int32_t turnChange;      // net change during this turn
};

struct SkillType {
    std::string_view name;
    std::int32_t tile;
    std::int32_t statsRow;  // the item row beside which it stands
    std::int32_t price;     // gold for a training step
    std::string_view description;
    std::int32_t highlightTurns;
};

struct PowerType {
    std::string_view name;
    std::int32_t tile;
    std::string_view description;
};

/// Rows of the monster table.
namespace monster {
enum Row : std::int32_t { skeleton, trap, ghost, oozingFilth, skeletonKing, demon, hypnoEye };
}  // namespace monster
inline constexpr int monsterCount = 7;

extern const std::array<EncounterType, encounterCount> EncounterTable;
extern const std::array<MonsterType, monsterCount> MonsterTable;
extern const std::array<PowerType, powerCount> PowerTable;

// These two also hold the run-time fields; the Gold row's tile is set for every game.
extern std::array<ItemType, itemCount> ItemTable;
extern std::array<SkillType, skillCount> SkillTable;

// Rows by plain index. A code outside 0 to 23 has Empty's row; the other indices must be in range.

const EncounterType& encounterType(int code);
const MonsterType& monsterType(int row);
ItemType& itemType(int item);
SkillType& skillType(int skill);
const PowerType& powerType(int power);

/// True for Empty and The End, which hold nothing to meet.
bool IsEmptyOrEnd(int code);

/// The damage of one fight: the row's bonus and a roll of each of its dice.
int MonsterDamage(int monsterRow);

/// What the Gold row's picture says may be bought in this scenario.
bool TrainingAvailable();
bool TradingAvailable();

/// Brings the run-time fields back to their built-in values.
void resetCatalogue();

}  // namespace gloomdeck
