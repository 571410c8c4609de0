// The 148 tiles cut from the picture strips, and the saved square under the hovered board cell.
#pragma once

#include <array>
#include <string>

#include "platform/draw.h"
#include "platform/geometry.h"
#include "rules/tiles.h"

namespace gloomdeck {

extern std::array<Image, tileCount> tileImages;  ///< tile n at index n - 1
extern Image cellBackup;                         ///< what the hover covers

/// Tile n; a number outside 1 to 148 has an empty image, which draws nothing.
const Image& tileImage(int number);

void putTile(int number, int x, int y, PutMode mode);
inline void putTile(int number, Point at, PutMode mode) { putTile(number, at.x, at.y, mode); }

/// Cuts the three strips of the picture folder; a strip that is missing leaves its tiles transparent.
void loadTiles();

void freeTiles();

/// The folder of the pictures, with a trailing separator.
std::string pictureFolder();

}  // namespace gloomdeck
