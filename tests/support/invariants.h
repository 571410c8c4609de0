// What the rules promise about the two records at any moment of any game.
#pragma once

#include <string>

namespace gloomdeck {

/// What is wrong with the game and the preferences; empty when nothing is.
std::string brokenInvariant();

}  // namespace gloomdeck
