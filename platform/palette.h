// The colours that all screens share, by what they are used for.
#pragma once

#include "platform/colour.h"

namespace gloomdeck::colour {

inline constexpr Colour black = 0xFF000000;
inline constexpr Colour white = 0xFFFFFFFF;
inline constexpr Colour yellow = 0xFFFFFF00;  // what is marked, new or has grown
inline constexpr Colour red = 0xFFFF0000;     // the second of two flashes
inline constexpr Colour panel = 0xFF2E473B;   // the default background: panels, bars, label strips
inline constexpr Colour text = 0xFFFAF0E6;    // the default text colour
inline constexpr Colour edge = 0xFFFAEBD7;    // outline and caption of a button, face of a selected one
inline constexpr Colour face = 0xFF696969;    // face of a button, cell of a table
inline constexpr Colour pressedFace = 0xFF2F4F4F;
inline constexpr Colour pressedCaption = 0xFFC0C0C0;
inline constexpr Colour slate = 0xFF708090;  // frames, areas, what is switched off
inline constexpr Colour brown = 0xFF964514;  // the frame of long texts, a beam
inline constexpr Colour loss = 0xFF292421;   // what has fallen, dark bands of a table

}  // namespace gloomdeck::colour
