// All that a picture is painted with.
#pragma once

#include "art/canvas.h"
#include "art/palette.h"
#include "art/shapes.h"
#include "art/textures.h"
