// Bodies that several tiles share: painted on a canvas without an outline, so that more can be laid over them
// first.
#pragma once

#include "art/canvas.h"

namespace gloomdeck::art {

// Six stacks of coins; y0 is the middle of the lowest row.
void goldPile(Canvas& t, double y0);
void shieldBody(Canvas& t);
void boltBody(Canvas& t);
void sunBody(Canvas& t);
void heartBody(Canvas& t);

}  // namespace gloomdeck::art
