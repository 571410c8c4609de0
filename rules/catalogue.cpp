// The tables, and their run-time fields as they are built in.
#include "rules/catalogue.h"

#include "platform/table.h"
#include "rules/dice.h"
#include "rules/tiles.h"

namespace gloomdeck {

// clang-format off
constexpr std::array<EncounterType, encounterCount> EncounterTable{{
    {.code = enc::Gold, .name = "Gold", .tile = tile::gold, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Use gold to increase skills. "
                    "Click the gold picture in the stats bar to the right of the map to activate the training and trading screen."},
    {.code = enc::Door, .name = "Door", .tile = tile::door, .ghostMayEnter = false, .filthMaySpread = true,
     .sunChance = never, .shieldChance = 0, .lightningChance = 2, .monster = none,
     .description = "Takes 1 key to open."},
    {.code = enc::Skeleton, .name = "Skeleton", .tile = tile::skeleton, .ghostMayEnter = false, .filthMaySpread = true,
     .sunChance = 16, .shieldChance = 50, .lightningChance = 50, .monster = monster::skeleton,
     .description = "Takes minor health to defeat."},
    {.code = enc::Trap, .name = "Trap", .tile = tile::trap, .ghostMayEnter = false, .filthMaySpread = true,
     .sunChance = never, .shieldChance = 0, .lightningChance = 2, .monster = monster::trap,
     .description = "Takes medium health when encountered."},
    {.code = enc::Darkness, .name = "Darkness", .tile = tile::darkness, .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = 100, .shieldChance = never, .lightningChance = 50, .monster = none,
     .description = "Takes 1 torch to clear."},
    {.code = enc::Backpack, .name = "Backpack", .tile = tile::backpack, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Contains keys or torches."},
    {.code = enc::Scroll, .name = "Scroll", .tile = tile::scroll, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Gives 1 spell."},
    {.code = enc::Ghost, .name = "Ghost", .tile = tile::ghost, .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = 33, .shieldChance = 4, .lightningChance = 15, .monster = monster::ghost,
     .description = "Runs away when met, takes minor health to defeat when trapped."},
    {.code = enc::Empty, .name = "Empty", .tile = tile::empty, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "An empty space."},
    {.code = enc::TheEnd, .name = "The End", .tile = tile::theEnd, .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Click this to finish a column."},
    {.code = enc::Chest, .name = "Chest", .tile = tile::chest, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Gives 1 spell, gold, health."},
    {.code = enc::Fruit, .name = "Fruit", .tile = tile::fruit, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Gives minor health."},
    {.code = enc::Thief, .name = "Thief", .tile = tile::thief, .ghostMayEnter = false, .filthMaySpread = true,
     .sunChance = never, .shieldChance = 25, .lightningChance = 50, .monster = none,
     .description = "Steals 1 item or health at random."},
    {.code = enc::OozingFilth, .name = "Oozing Filth", .tile = tile::oozingFilth,
     .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = 8, .shieldChance = 4, .lightningChance = 15, .monster = monster::oozingFilth,
     .description = "Multiplies, destroys items with acid, takes medium health to defeat."},
    {.code = enc::SkeletonKing, .name = "Skeleton King", .tile = tile::skeletonKing,
     .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = 4, .shieldChance = 4, .lightningChance = 4, .monster = monster::skeletonKing,
     .description = "Takes medium health to defeat."},
    {.code = enc::Demon, .name = "Demon", .tile = tile::demon, .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = 8, .shieldChance = 2, .lightningChance = 2, .monster = monster::demon,
     .description = "Teleports when met, takes medium health to defeat."},
    {.code = enc::DoubleDoor, .name = "Double Door", .tile = tile::doubleDoor,
     .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = never, .shieldChance = 0, .lightningChance = 0, .monster = none,
     .description = "Takes 2 keys to open."},
    {.code = enc::LockedChest, .name = "Locked Chest", .tile = tile::lockedChest,
     .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Takes 1 key to open, gives health, gold, spells."},
    {.code = enc::Meat, .name = "Meat", .tile = tile::meat, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Gives medium health."},
    {.code = enc::Cave, .name = "Cave", .tile = tile::cave, .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = 20, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Takes 2 torches to explore, has random contents."},
    {.code = enc::MasterThief, .name = "Master Thief", .tile = tile::masterThief,
     .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = never, .shieldChance = 10, .lightningChance = 20, .monster = none,
     .description = "Steals 3 times at random."},
    {.code = enc::Book, .name = "Book", .tile = tile::book, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Teaches you a random skill."},
    {.code = enc::HypnoEye, .name = "Hypno Eye", .tile = tile::hypnoEye, .ghostMayEnter = false, .filthMaySpread = false,
     .sunChance = 16, .shieldChance = 16, .lightningChance = 33, .monster = monster::hypnoEye,
     .description = "Hides things below it, takes medium health to defeat."},
    {.code = enc::Flower, .name = "Flower", .tile = tile::flower, .ghostMayEnter = true, .filthMaySpread = true,
     .sunChance = never, .shieldChance = never, .lightningChance = never, .monster = none,
     .description = "Gives magic vision, 1 health."},
}};
static_assert(rowsStandAtTheirIndex(EncounterTable, &EncounterType::code));

const std::array<MonsterType, monsterCount> MonsterTable{{
    // threshold      dice      bonus  becomes
    {       0, { 6, 0, 0},        0,   none},       // Skeleton
    {  -30000, {20, 0, 0},        0,   none},       // Trap
    {       0, { 2, 0, 0},        0,   none},       // Ghost
    {       0, { 3, 0, 0},        3,   none},       // Oozing Filth
    {       0, { 6, 6, 6},        0,   enc::Gold},  // Skeleton King
    {       0, {10, 0, 0},        5,   none},       // Demon
    {       0, { 6, 6, 0},        2,   none},       // Hypno Eye
}};

namespace {

constexpr std::array<ItemType, itemCount> builtInItems{{
    {"Keys", tile::key, false, "They unlock doors and chests.", -1, 0},
    {"Torches", tile::torch, false, "They light up darkness and caves.", -1, 0},
    {"Gold", tile::gold, true, "Click it to increase your skills.", -1, 0},
    {"Shields", tile::shield, true, "Click it to magically attack things.", -1, 0},
    {"Lightning bolts", tile::lightning, true, "Click it to magically attack a column.", -1, 0},
    {"Suns", tile::sun, true, "Click it to expel darkness, monsters.", -1, 0},
    {"Bombs", tile::bomb, true, "Click it to blow up something.", -1, 0},
    {"Hands", tile::hand, true, "Click it to get something from afar.", -1, 0},
    {"Health", tile::health, false, "Must be postive to pass by monsters.", -1, 0},
}};

constexpr std::array<SkillType, skillCount> builtInSkills{{
    {"Lockpicking", tile::lockpicking, keys, 50, "Gives a chance to open doors and locked chests for free.", 0},
    {"Thief protection", tile::thiefProtection, gold, 15, "Gives a chance to stop a thief.", 0},
    {"Shield boost", tile::shieldBoost, shields, 60, "Makes your shield spell stronger.", 0},
    {"Lightning boost", tile::lightningBoost, lightningBolts, 30, "Makes your lighning spell stronger.", 0},
    {"Sun boost", tile::sunBoost, suns, 45, "Makes your sun spell stronger.", 0},
    {"Toughness", tile::toughness, health, 20, "Reduces damage taken, and heals you a little.", 0},
}};

}  // namespace

const std::array<PowerType, powerCount> PowerTable{{
    {"Magic sight", tile::magicSight, "Freely move through the dark, detect mimics, and see below eyes."},
    {"Stasis", tile::stasis, "No monsters move, or do secondary effects, like stealing."},
    {"Deflection", tile::deflection, "Reduces damage taken by 2/3."},
}};
// clang-format on

std::array<ItemType, itemCount> ItemTable = builtInItems;
std::array<SkillType, skillCount> SkillTable = builtInSkills;

const EncounterType& encounterType(int code) { return rowAt(EncounterTable, code, enc::Empty); }

const MonsterType& monsterType(int row) { return MonsterTable[static_cast<std::size_t>(row)]; }
ItemType& itemType(int item) { return ItemTable[static_cast<std::size_t>(item)]; }
SkillType& skillType(int skill) { return SkillTable[static_cast<std::size_t>(skill)]; }
const PowerType& powerType(int power) { return PowerTable[static_cast<std::size_t>(power)]; }

bool IsEmptyOrEnd(int code) { return code == enc::Empty || code == enc::TheEnd; }

int MonsterDamage(int monsterRow) {
    const MonsterType& type = monsterType(monsterRow);
    int damage = type.bonus;
    for (const int die : type.dice) damage += Roll(die);
    return damage;
}

bool TrainingAvailable() {
    const int shown = itemType(gold).tile;
    return shown == tile::goldBoth || shown == tile::goldTraining;
}

bool TradingAvailable() {
    const int shown = itemType(gold).tile;
    return shown == tile::goldBoth || shown == tile::goldTrading;
}

void resetCatalogue() {
    ItemTable = builtInItems;
    SkillTable = builtInSkills;
}

}  // namespace gloomdeck
