// What board cells hold, and the indices of items, skills and powers.
#pragma once

#include <cstdint>

namespace gloomdeck {

/// Encounter codes; Empty is what a cleared cell holds, TheEnd the last tile of every column.
namespace enc {
enum Code : std::int32_t {
    Gold,
    Door,
    Skeleton,
    Trap,
    Darkness,
    Backpack,
    Scroll,
    Ghost,
    Empty,
    TheEnd,
    Chest,
    Fruit,
    Thief,
    OozingFilth,
    SkeletonKing,
    Demon,
    DoubleDoor,
    LockedChest,
    Meat,
    Cave,
    MasterThief,
    Book,
    HypnoEye,
    Flower
};
}  // namespace enc
inline constexpr int encounterCount = 24;

/// Indices of the inventory and of the item table.
enum Item : std::int32_t { keys, torches, gold, shields, lightningBolts, suns, bombs, hands, health };
inline constexpr int itemCount = 9;

/// Indices of the skills and of the skill table.
enum Skill : std::int32_t { lockpicking, thiefProtection, shieldBoost, lightningBoost, sunBoost, toughness };
inline constexpr int skillCount = 6;

/// Indices of the powers and of the power table.
enum Power : std::int32_t { magicSight, stasis, deflection };
inline constexpr int powerCount = 3;

inline constexpr int none = -1;  ///< the "none" of indices

}  // namespace gloomdeck
