// The contents of a file.
#pragma once

#include <cstdint>
#include <vector>

namespace gloomdeck {

using Bytes = std::vector<std::uint8_t>;

}  // namespace gloomdeck
