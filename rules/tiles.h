// Tile numbers by what the pictures show. Tiles are 32 x 32 pixels, numbered 1 to 148.
#pragma once

namespace gloomdeck {
inline constexpr int tileCount = 148;
}  // namespace gloomdeck

namespace gloomdeck::tile {

inline constexpr int size = 32;  ///< pixels a side

// Encounters; several serve as icons elsewhere too.
inline constexpr int scroll = 1;
inline constexpr int gold = 3;
inline constexpr int thief = 5;
inline constexpr int flower = 6;
inline constexpr int cave = 14;
inline constexpr int chest = 17;
inline constexpr int doubleDoor = 18;
inline constexpr int book = 19;
inline constexpr int meat = 21;
inline constexpr int fruit = 22;
inline constexpr int masterThief = 28;
inline constexpr int hypnoEye = 34;
inline constexpr int demon = 35;
inline constexpr int lockedChest = 41;
inline constexpr int oozingFilth = 42;
inline constexpr int theEnd = 46;
inline constexpr int backpack = 49;
inline constexpr int darkness = 50;
inline constexpr int trap = 65;
inline constexpr int door = 69;
inline constexpr int skeletonKing = 82;
inline constexpr int ghost = 91;
inline constexpr int skeleton = 93;
inline constexpr int empty = 100;

// Items; the Gold row's picture says what may be bought.
inline constexpr int bomb = 7;
inline constexpr int lightning = 13;
inline constexpr int health = 16;
inline constexpr int sun = 23;
inline constexpr int shield = 24;
inline constexpr int hand = 39;
inline constexpr int torch = 45;
inline constexpr int key = 48;
inline constexpr int goldTrading = 68;
inline constexpr int goldTraining = 74;
inline constexpr int goldBoth = 75;

// Skills and powers.
inline constexpr int lightningBoost = 101;
inline constexpr int sunBoost = 102;
inline constexpr int shieldBoost = 103;
inline constexpr int toughness = 104;
inline constexpr int lockpicking = 105;
inline constexpr int thiefProtection = 106;
inline constexpr int deflection = 27;
inline constexpr int magicSight = 29;
inline constexpr int stasis = 30;

// Terrain and layers.
inline constexpr int portal = 37;
inline constexpr int masonry = 53;
inline constexpr int cellar = 55;
inline constexpr int cover = 58;
inline constexpr int ruins = 60;
inline constexpr int pictureFrame = 70;
inline constexpr int marble = 71;

// Effects.
inline constexpr int scorch = 33;
inline constexpr int glow = 47;
inline constexpr int spreading = 76;
inline constexpr int shieldHit = 77;

// The day display: left halves; the right half is the next number.
inline constexpr int dawn = 83;
inline constexpr int noon = 85;
inline constexpr int dusk = 87;
inline constexpr int night = 97;

}  // namespace gloomdeck::tile
