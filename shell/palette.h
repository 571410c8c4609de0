// The colours of the screens, by what they are used for.
#pragma once

#include "platform/colour.h"

namespace gloomdeck::colour {

inline constexpr Colour black = 0xFF000000;
inline constexpr Colour white = 0xFFFFFFFF;
inline constexpr Colour yellow = 0xFFFFFF00;  // gains, the newest message, highlighted text
inline constexpr Colour red = 0xFFFF0000;     // the autoplayer's second flash
inline constexpr Colour panel = 0xFF2E473B;   // the default background: panels, bars, label strips
inline constexpr Colour text = 0xFFFAF0E6;    // the default text colour
inline constexpr Colour edge = 0xFFFAEBD7;    // button outline and caption, selected menu cell
inline constexpr Colour face = 0xFF696969;    // button face, stats cell, unselected menu cell
inline constexpr Colour pressedFace = 0xFF2F4F4F;
inline constexpr Colour pressedCaption = 0xFFC0C0C0;
inline constexpr Colour slate = 0xFF708090;  // frames, the stats area, what is switched off
inline constexpr Colour brown = 0xFF964514;  // the story panel's frame, the eye's beam
inline constexpr Colour loss = 0xFF292421;   // a falling count, dark table bands

}  // namespace gloomdeck::colour
