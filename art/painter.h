// All that a picture is painted with.
#pragma once

#include "art/canvas.h"    // IWYU pragma: export
#include "art/palette.h"   // IWYU pragma: export
#include "art/shapes.h"    // IWYU pragma: export
#include "art/textures.h"  // IWYU pragma: export
