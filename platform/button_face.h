// How every button looks, whatever it does: face, shadow, outline and caption.
#pragma once

#include <string_view>

#include "platform/colour.h"
#include "platform/geometry.h"

namespace gloomdeck {

struct ButtonFace {
    Rect box;  ///< the outline, around the face
    Colour face;
    Colour outline;
    Colour ink;  ///< of the caption
    std::string_view caption;
    Point captionPlace;  ///< its top left corner
};

/// Draws all of it; the shadow is one pixel to the right of the box and below it.
void drawButtonFace(const ButtonFace& button);

/// Draws face and caption anew, inside an outline that stays.
void redrawButtonInside(const ButtonFace& button);

}  // namespace gloomdeck
