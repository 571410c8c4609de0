// The title picture, which fills the whole window.
#pragma once

#include "art/canvas.h"

namespace gloomdeck::art {

inline constexpr int titleWidth = 408, titleHeight = 488;

Canvas paintTitle();

// The same for where the game's page is linked: wide, and of that size whatever is shown there.
inline constexpr int previewWidth = 1200, previewHeight = 630;
Canvas paintPreview();

// What it is made of, back to front, on units of its pixels.
inline constexpr double titleMiddle = titleWidth / 2.0;
void titleWall(Canvas& p);
void titleTorches(Canvas& p);
void titleRobe(Canvas& p);
void titleSkull(Canvas& p);
void titleCrown(Canvas& p);
void titleName(Canvas& p);
void titleCards(Canvas& p);

// Closed polygon from its right half, offsets from the middle line, top to bottom.
Field mirrored(const std::vector<double>& half);

}  // namespace gloomdeck::art
