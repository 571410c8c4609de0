// The set of tiles: every used number with the function that paints it.
#pragma once

#include <span>
#include <vector>

#include "art/canvas.h"

namespace gloomdeck::art {

struct Tile {
    int number;
    Canvas (*paint)();
};

using TileGroup = std::span<const Tile>;

// The groups, each in its own file.
TileGroup creatureTiles();
TileGroup findTiles();
TileGroup placeTiles();
TileGroup itemTiles();
TileGroup skillAndPowerTiles();
TileGroup terrainTiles();
TileGroup effectTiles();
TileGroup dayTiles();

// All of them, by number.
std::vector<Tile> allTiles();
Canvas paintTile(int number);

}  // namespace gloomdeck::art
