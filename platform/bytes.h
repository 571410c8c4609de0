// The contents of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gloomdeck {

using Bytes = std::vector<std::uint8_t>;

/// Numbers of two and four bytes, lowest first; they must lie in the file.
inline std::uint32_t little16(const Bytes& file, std::size_t at) {
    return file[at] | static_cast<std::uint32_t>(file[at + 1]) << 8;
}
inline std::uint32_t little32(const Bytes& file, std::size_t at) {
    return little16(file, at) | little16(file, at + 2) << 16;
}

}  // namespace gloomdeck
