// How a frame lies in a drawing area of any size: whole-number enlargement, centred, or shrunk to fit.
#pragma once

#include <optional>

#include "platform/colour.h"
#include "platform/geometry.h"

namespace gloomdeck {

/// Width and height in pixels.
struct Extent {
    int width = 0;
    int height = 0;
    friend bool operator==(const Extent&, const Extent&) = default;
};

/// How many times its size (1 to 4) a window for the frame opens on a display with that much usable room.
/// Twice where that, with a title bar, takes at most three quarters of it, or wherever it fits on a desktop
/// that shows everything at 1.5 times its size or more; larger ones leave half the width and a third of the
/// height free.
int openingScale(Extent usable, double desktopScale);

/// Where the frame is shown: the largest whole multiple of it that fits, centred; in an area smaller than the
/// frame the largest picture of its shape. The corners lie inside the area, whose sides are at least 1.
Rect fitFrame(Extent frame, Extent area);

/// The frame's pixel under the area's pixel (x, y); none beside the picture.
std::optional<Point> framePixelAt(Extent frame, const Rect& fit, int x, int y);

/// Draws those rows of the frame at their place: whole multiples in hard pixels, smaller pictures by
/// averaging and whole. Rows of the area stand pitch pixels apart. Answers what it drew; all else keeps its
/// pixels.
Rect drawFitted(Extent frame, const Colour* pixels, Rows rows, const Rect& fit, Colour* area, int pitch);

}  // namespace gloomdeck
