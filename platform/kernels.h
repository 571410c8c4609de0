// The three pixel loops under putImage, a row at a time.
#pragma once

#include "platform/colour.h"

namespace gloomdeck {

void copyRow(Colour* to, const Colour* from, int count);

/// Copies what is not transparent.
void copyRowTransparent(Colour* to, const Colour* from, int count);

/// Every channel d of a pixel that is not transparent becomes d + (s - d) * alpha / 256, divided toward zero.
/// alpha is 0 to 255.
void blendRow(Colour* to, const Colour* from, int count, int alpha);

}  // namespace gloomdeck
