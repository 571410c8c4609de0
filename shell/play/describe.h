// What the information area tells about the hovered cell, and the framed pictures it shares with the help.
#pragma once

namespace gloomdeck {

void describeBoardCell(int col, int row);
void describeItem(int row);

/// The boxes of what may clear an encounter, in tiles from the first.
namespace chance_box {
inline constexpr int shield = 0;
inline constexpr int sun = 1;
inline constexpr int lightning = 2;
inline constexpr int bomb = 4;  // it has no chance, so it stands apart
}  // namespace chance_box

inline constexpr int chanceLift = 10;  ///< a percentage stands so far above its box

/// The picture frame at (x, y) with a tile on it.
void drawFramedTile(int tileNumber, int x, int y);

/// A framed bomb, covered when the encounter holds nothing to blow up.
void drawBombBox(int code, int x, int y);

}  // namespace gloomdeck
