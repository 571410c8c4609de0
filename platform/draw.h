// Drawing into the frame: lines, boxes, circles, text and images, inside the clip. Places outside are
// discarded.
#pragma once

#include <string_view>

#include "platform/colour.h"
#include "platform/image.h"

namespace gloomdeck {

/// The colours of text that names none, and of a cleared screen.
void setDefaultColours(Colour text, Colour background);

/// Fills the frame with the default background colour.
void clearScreen();

void drawLine(int x1, int y1, int x2, int y2, Colour colour);

/// The four edges of a rectangle, one pixel wide; corners in any order, both included.
void drawBox(int x1, int y1, int x2, int y2, Colour colour);
void fillBox(int x1, int y1, int x2, int y2, Colour colour);

/// A circle's outline, one pixel wide. A radius below 0 draws nothing, 0 a dot.
void drawCircle(int cx, int cy, int radius, Colour colour);

/// Sets the pixels of the glyphs, the first character's cell with its corner at (x, y), 8 pixels to the next.
void drawText(int x, int y, std::string_view text, Colour colour);
void drawText(int x, int y, std::string_view text);

/// How putImage mixes; alpha (0 to 255) counts for blend alone.
struct PutMode {
    enum class Kind { copy, transparent, blend } kind = Kind::copy;
    int alpha = 255;
};

inline constexpr PutMode putCopy{PutMode::Kind::copy};
inline constexpr PutMode putTransparent{PutMode::Kind::transparent};
constexpr PutMode putBlended(int alpha) { return {PutMode::Kind::blend, alpha}; }

/// Draws the whole image with its top left corner at (x, y).
void putImage(int x, int y, const Image& image, PutMode mode);

}  // namespace gloomdeck
