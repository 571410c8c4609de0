// The weights of every deck, and the percentages that they round to.
#include "content/locations.h"

#include <algorithm>
#include <initializer_list>

#include "platform/rounding.h"
#include "platform/table.h"
#include "rules/tiles.h"

namespace gloomdeck {

namespace {

struct Weight {
    enc::Code code;
    std::int32_t weight;
};

using Weights = std::array<std::int32_t, encounterCount>;

constexpr Weights weightsOf(std::initializer_list<Weight> list) {
    Weights weights{};
    for (const Weight& w : list) weights[static_cast<std::size_t>(w.code)] = w.weight;
    return weights;
}

constexpr std::int32_t totalWeight(const Location& location) {
    std::int32_t total = 0;
    for (const std::int32_t weight : location.encounterWeights) total += weight;
    return total;
}

}  // namespace

// clang-format off
constexpr std::array<Location, locationCount> LocationTable{{
    {.id = location_id::cellar, .name = "Cellar", .backgroundTile = tile::cellar, .deckLength = 20,
     .encounterWeights = weightsOf({
        {enc::Gold, 1}, {enc::Door, 3}, {enc::Skeleton, 1}, {enc::Darkness, 4}, {enc::Backpack, 3},
        {enc::Scroll, 1}, {enc::Empty, 1}, {enc::Chest, 1}, {enc::Fruit, 1}, {enc::Thief, 1},
        {enc::DoubleDoor, 1}, {enc::LockedChest, 1}, {enc::Meat, 1}, {enc::MasterThief, 1}})},
    {.id = location_id::ruins, .name = "Ruins", .backgroundTile = tile::ruins, .deckLength = 60,
     .encounterWeights = weightsOf({
        {enc::Gold, 1}, {enc::Skeleton, 4}, {enc::Trap, 1}, {enc::Backpack, 1}, {enc::Scroll, 1},
        {enc::Ghost, 3}, {enc::Empty, 1}, {enc::Chest, 1}, {enc::Fruit, 1}, {enc::SkeletonKing, 1},
        {enc::LockedChest, 1}, {enc::Meat, 1}, {enc::MasterThief, 1}, {enc::Flower, 1}})},
    {.id = location_id::portal, .name = "*Portal*", .backgroundTile = tile::portal, .deckLength = 70,
     .encounterWeights = weightsOf({
        {enc::Gold, 4}, {enc::Door, 4}, {enc::Skeleton, 4}, {enc::Trap, 4}, {enc::Darkness, 4},
        {enc::Backpack, 4}, {enc::Scroll, 4}, {enc::Ghost, 4}, {enc::Empty, 4}, {enc::Chest, 4},
        {enc::Fruit, 4}, {enc::Thief, 4}, {enc::OozingFilth, 3}, {enc::SkeletonKing, 4}, {enc::Demon, 4},
        {enc::DoubleDoor, 3}, {enc::LockedChest, 3}, {enc::Meat, 4}, {enc::Cave, 3}, {enc::MasterThief, 3},
        {enc::Book, 3}, {enc::HypnoEye, 3}, {enc::Flower, 3}})},
    {.id = location_id::dungeon, .name = "Dungeon", .backgroundTile = tile::cellar, .deckLength = 60,
     .encounterWeights = weightsOf({
        {enc::Gold, 10}, {enc::Door, 10}, {enc::Skeleton, 10}, {enc::Trap, 10}, {enc::Darkness, 10},
        {enc::Backpack, 5}, {enc::Scroll, 5}, {enc::Ghost, 5}, {enc::Empty, 2}, {enc::Chest, 5},
        {enc::Thief, 5}, {enc::OozingFilth, 5}, {enc::SkeletonKing, 4}, {enc::Demon, 1},
        {enc::DoubleDoor, 1}, {enc::LockedChest, 1}, {enc::Meat, 1}, {enc::Cave, 1}, {enc::MasterThief, 1},
        {enc::Book, 1}, {enc::HypnoEye, 1}})},
    {.id = location_id::treasury, .name = "Treasury", .backgroundTile = tile::marble, .deckLength = 20,
     .encounterWeights = weightsOf({
        {enc::Gold, 3}, {enc::Door, 5}, {enc::Empty, 1}, {enc::Chest, 5}, {enc::Thief, 1},
        {enc::DoubleDoor, 1}, {enc::LockedChest, 1}, {enc::MasterThief, 1}})},
    {.id = location_id::hideout, .name = "Hideout", .backgroundTile = tile::cellar, .deckLength = 50,
     .encounterWeights = weightsOf({
        {enc::Gold, 1}, {enc::Door, 1}, {enc::Trap, 1}, {enc::Darkness, 1}, {enc::Backpack, 1},
        {enc::Empty, 1}, {enc::Chest, 1}, {enc::Thief, 1}, {enc::DoubleDoor, 2}, {enc::LockedChest, 2},
        {enc::MasterThief, 3}})},
    {.id = location_id::easy, .name = "Easy", .backgroundTile = tile::cellar, .deckLength = 40,
     .encounterWeights = weightsOf({
        {enc::Gold, 2}, {enc::Door, 1}, {enc::Skeleton, 2}, {enc::Darkness, 1}, {enc::Backpack, 2},
        {enc::Scroll, 2}, {enc::Ghost, 2}, {enc::Empty, 2}, {enc::Chest, 1}, {enc::Fruit, 2},
        {enc::Thief, 2}, {enc::Meat, 1}})},
    {.id = location_id::alley, .name = "$ Alley", .backgroundTile = tile::cellar, .deckLength = 50,
     .encounterWeights = weightsOf({
        {enc::Gold, 4}, {enc::Trap, 4}, {enc::Darkness, 4}, {enc::Backpack, 25}, {enc::Chest, 4},
        {enc::Fruit, 4}, {enc::Thief, 40}, {enc::LockedChest, 3}, {enc::MasterThief, 12}})},
    {.id = location_id::crags, .name = "Crags", .backgroundTile = tile::ruins, .deckLength = 40,
     .encounterWeights = weightsOf({
        {enc::Skeleton, 6}, {enc::Backpack, 8}, {enc::Ghost, 6}, {enc::Empty, 3}, {enc::Fruit, 8},
        {enc::SkeletonKing, 9}, {enc::Demon, 10}, {enc::Cave, 40}, {enc::Flower, 10}})},
}};
// clang-format on
static_assert(rowsStandAtTheirIndex(LocationTable, &Location::id));

namespace {

// The deal divides by the total, and a fresh column must consist of weighted draws alone.
constexpr bool everyLocationCanBeDealt() {
    return std::all_of(LocationTable.begin(), LocationTable.end(), [](const Location& location) {
        return totalWeight(location) > 0 && location.deckLength >= 8 &&
               location.encounterWeights[enc::TheEnd] == 0 && location.name.size() <= 20;
    });
}
static_assert(everyLocationCanBeDealt());

using Percentages = std::array<int, encounterCount>;

constexpr Percentages percentagesOf(const Location& location) {
    Percentages all{};
    const std::int32_t total = totalWeight(location);
    if (total == 0) return all;  // no location is so; only the analyzer must be told
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = roundedRatio(location.encounterWeights[i] * std::int64_t{100}, total);
    return all;
}

constexpr std::array<Percentages, locationCount> percentages = [] {
    std::array<Percentages, locationCount> all{};
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = percentagesOf(LocationTable[i]);
    return all;
}();

}  // namespace

const Location& locationRow(int index) { return rowAt(LocationTable, index); }

int dealPercentage(int location, int code) {
    return rowAt(percentages, location)[static_cast<std::size_t>(code)];
}

}  // namespace gloomdeck
