// The same puts through other libraries, each on a frame of its own. What can be prepared once is prepared
// before anything is measured: pixels in the frame's kind, keys, masks, run lengths.
#pragma once

#include <functional>
#include <vector>

#include "benchmarks/recorded_puts.h"

namespace gloomdeck {

using Drawing = std::function<void()>;

/// Copies the rows of every image, what is transparent as well.
Drawing copiedRows(const std::vector<Put>& puts);

/// SDL_BlitSurface, with a colour key and an alpha of the surface, and run-length encoding where it is
/// wanted.
Drawing sdlBlits(const std::vector<Put>& puts, bool runLengths);

/// pixman's SRC and OVER, with transparent pixels of no alpha, and a mask of one colour for a blend.
Drawing pixmanComposites(const std::vector<Put>& puts);

}  // namespace gloomdeck
