// The pixel loops under images and boxes, on the rows of a rectangle.
#pragma once

#include "platform/colour.h"

namespace gloomdeck {

/// Rows that are drawn on, and as many that are drawn; they start a step of pixels apart. The two lie apart
/// in memory, width and height are at least 1.
struct PixelRows {
    Colour* to;
    int toStep;
    const Colour* from;
    int fromStep;
    int width;
    int height;
};

void copyRows(const PixelRows& rows);

/// Copies what is not transparent.
void copyRowsTransparent(const PixelRows& rows);

/// Every channel d of a pixel that is not transparent becomes d + (s - d) * alpha / 256, divided toward zero.
/// alpha is 0 to 255.
void blendRows(const PixelRows& rows, int alpha);

/// Gives every pixel of the rows the colour; rows start a step of pixels apart, width and height are at
/// least 1.
void fillRows(Colour* to, int step, int width, int height, Colour colour);

/// All but the copy use the processor's wide registers where it has some; false makes them do without, with
/// the same pixels. Answers whether they are in use now.
bool useWideRegisters(bool wanted);

}  // namespace gloomdeck
