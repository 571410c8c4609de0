// The groups of tiles put together.
#include "art/tiles.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace gloomdeck::art {

std::vector<Tile> allTiles() {
    std::vector<Tile> all;
    for (const TileGroup group : {creatureTiles(), findTiles(), placeTiles(), itemTiles(),
                                  skillAndPowerTiles(), terrainTiles(), effectTiles(), dayTiles()}) {
        all.insert(all.end(), group.begin(), group.end());
    }
    std::ranges::sort(all, {}, &Tile::number);
    return all;
}

Canvas paintTile(int number) {
    static const std::vector<Tile> all = allTiles();
    const auto found = std::ranges::find(all, number, &Tile::number);
    if (found == all.end()) throw std::out_of_range("no tile " + std::to_string(number));
    return found->paint();
}

}  // namespace gloomdeck::art
