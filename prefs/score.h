// The score of a cleared board: what the hero owns per thousand turns.
#pragma once

#include <cstdint>

namespace gloomdeck {

/// Never negative; 0 for a game without turns.
std::int32_t ComputeScore();

}  // namespace gloomdeck
