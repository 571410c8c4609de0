// Every tile painted once for all tests, and the groups that the tests speak of.
#pragma once

#include <map>

#include "art/tiles.h"

namespace gloomdeck::art {

inline constexpr int cover = 58;
inline constexpr int terrains[] = {55, 60, 37, 71};
inline constexpr int encounters[] = {3, 69, 93, 65, 50, 49, 1,  91, 100, 46, 17, 22,
                                     5, 42, 82, 35, 18, 41, 21, 14, 28,  19, 34, 6};
inline constexpr int items[] = {48, 45, 24, 13, 23, 7, 39, 16};
inline constexpr int markedGold[] = {75, 74, 68};
inline constexpr int skillsAndPowers[] = {103, 101, 102, 104, 105, 106, 29, 30, 27};
inline constexpr int opaqueTiles[] = {55, 60, 37, 71, 50, 53, 47, 70, 83, 84, 85, 86, 87, 88, 97, 98};

inline const std::map<int, Canvas>& paintedTiles() {
    static const std::map<int, Canvas> painted = [] {
        std::map<int, Canvas> all;
        for (const Tile& tile : allTiles()) all.emplace(tile.number, tile.paint());
        return all;
    }();
    return painted;
}

inline const Canvas& tile(int number) { return paintedTiles().at(number); }

}  // namespace gloomdeck::art
