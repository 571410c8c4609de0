// Frames kept as pictures. GLOOMDECK_REFRESH_GOLDEN=1 in the environment writes them anew.
#pragma once

#include <string>

namespace gloomdeck {

/// Compares the frame with tests/play/golden/NAME.png. Where they differ NAME.actual.png is written beside
/// it.
void expectGoldenFrame(const std::string& name);

}  // namespace gloomdeck
