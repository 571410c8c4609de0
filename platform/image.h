// Images: blocks of pixels, and cutting one out of another.
#pragma once

#include <vector>

#include "platform/colour.h"
#include "platform/geometry.h"
#include "platform/kernels.h"

namespace gloomdeck {

struct Image {
    int width = 0;
    int height = 0;
    std::vector<Colour> pixels;  ///< rows top to bottom
};

/// A new image filled with the transparent colour; a size below 1 gives an empty image.
Image createImage(int width, int height);

/// Gives the pixels back; the image is empty afterwards. Destroying an empty image does nothing.
void destroyImage(Image& image);

/// Copies the rectangle (corners included) of the source into the destination, which takes its size from its
/// own width and height. What lies outside the source stays as it was in the destination.
void getImage(const Image& source, int x1, int y1, int x2, int y2, Image& destination);

// For the drawing operations of this layer.

/// A part of the destination, not empty, and what lies there of a source whose corner stands at that place;
/// the part is inside both.
inline PixelRows rowsOf(Image& destination, const Rect& part, const Image& source, Point corner) {
    return {.to = destination.pixels.data() + part.y1 * destination.width + part.x1,
            .toStep = destination.width,
            .from = source.pixels.data() + (part.y1 - corner.y) * source.width + (part.x1 - corner.x),
            .fromStep = source.width,
            .width = part.x2 - part.x1 + 1,
            .height = part.y2 - part.y1 + 1};
}

}  // namespace gloomdeck
