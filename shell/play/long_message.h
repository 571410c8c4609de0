// Story and notice texts.
#pragma once

#include <string>

namespace gloomdeck {

/// Shows a text over the board, waits until the player acknowledges it, and draws the board again.
void showLongMessage(const std::string& text);

}  // namespace gloomdeck
