// Images, and the three ways to put them on the frame.
#pragma once

#include <vector>

#include "platform/colour.h"

namespace gloomdeck {

struct Image {
    int width = 0;
    int height = 0;
    std::vector<Colour> pixels;  ///< rows top to bottom
};

/// How putImage mixes; alpha (0 to 255) counts for blend alone.
struct PutMode {
    enum class Kind { copy, transparent, blend } kind = Kind::copy;
    int alpha = 255;
};

inline constexpr PutMode putCopy{PutMode::Kind::copy};
inline constexpr PutMode putTransparent{PutMode::Kind::transparent};
constexpr PutMode putBlended(int alpha) { return {PutMode::Kind::blend, alpha}; }

/// A new image filled with the transparent colour; a size below 1 gives an empty image.
Image createImage(int width, int height);

/// Gives the pixels back; the image is empty afterwards. Destroying an empty image does nothing.
void destroyImage(Image& image);

/// Copies the rectangle (corners included) of the source into the destination, which takes its size from its
/// own width and height. What lies outside the source stays as it was in the destination.
void getImage(const Image& source, int x1, int y1, int x2, int y2, Image& destination);

/// Draws the whole image with its top left corner at (x, y), inside the clip.
void putImage(int x, int y, const Image& image, PutMode mode);

}  // namespace gloomdeck
