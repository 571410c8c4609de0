// The values of the encounters, a row each.
#include "autoplayer/autoplayer_table.h"

#include "platform/table.h"

namespace gloomdeck {

// clang-format off
const std::array<AutoplayerRow, encounterCount> AutoplayerTable{{
    // powered  base  easy  hard  worst  category  bottomOnly
    {        0,    6,    0,    0,     0,        1,          0},  // Gold
    {        0,    0,   -1,   -9,   -14,        2,          0},  // Door
    {        0,    0,   -2,  -10,   -15,        2,          0},  // Skeleton
    {        0,    0,   -2,  -10,     0,        2,          0},  // Trap
    {       19,    0,   -1,   -9,   -14,        2,          0},  // Darkness
    {        0,    7,    4,    0,     0,        1,          0},  // Backpack
    {        0,    8,    0,    0,     0,        1,          0},  // Scroll
    {       12,    0,   -2,  -10,   -20,        2,          0},  // Ghost
    {        0,    3,    0,    0,     0,        1,          0},  // Empty
    {        0,    0,    0,    0,     0,        1,          1},  // The End
    {        0,    9,    0,    0,     0,        1,          0},  // Chest
    {        0,    6,    0,    0,     0,        1,          0},  // Fruit
    {       18,    0,    0,    0,   -20,        2,          0},  // Thief
    {       16,    0,   -2,  -10,   -20,        2,          0},  // Oozing Filth
    {        0,    0,   -1,   -9,   -15,        2,          0},  // Skeleton King
    {       15,    0,   -2,  -10,   -20,        2,          0},  // Demon
    {        0,    0,   -1,  -10,   -15,        2,          0},  // Double Door
    {        0,   10,    8,    1,   -10,        1,          0},  // Locked Chest
    {        0,    8,    0,    0,     0,        1,          0},  // Meat
    {       20,    0,   -1,   -9,   -15,        2,          0},  // Cave
    {       20,    0,    0,    0,   -18,        2,          0},  // Master Thief
    {        0,    9,    0,    0,     0,        1,          0},  // Book
    {        0,    0,   -2,  -10,   -15,        2,          0},  // Hypno Eye
    {        0,    7,    0,    0,     0,        2,          0},  // Flower
}};
// clang-format on

const AutoplayerRow& autoplayerRow(int code) { return rowAt(AutoplayerTable, code, enc::Empty); }

}  // namespace gloomdeck
