// The application icon: the crowned skull on transparent ground.
#pragma once

#include "art/canvas.h"

namespace gloomdeck::art {

inline constexpr int iconSizes[] = {16, 32, 48, 64, 128, 256};
inline constexpr int finestIcon = 256;  // the scalable one is drawn like it

Canvas paintIcon(int size);

// The icon on a ground that fills the square, so far inside that a system may cut the corners round.
Canvas paintMaskableIcon(int size);

}  // namespace gloomdeck::art
