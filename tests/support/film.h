// A film of the frame: every picture by a hash, and each as its difference to the one before it.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "platform/image.h"

namespace gloomdeck {

using Hash = std::uint32_t;

struct Film {
    /// Pixels from a place on (counted through the rows) that one colour has replaced; one without length
    /// ends a picture, and its colour is the picture's hash.
    struct Run {
        std::uint32_t at;
        std::uint32_t length;
        Colour colour;
    };
    std::vector<Run> runs;
    std::vector<Colour> last;              // the pixels of the newest picture
    std::vector<std::uint64_t> rowHashes;  // of its rows
};

/// Adds the frame where it is not as it was; the answer is its hash.
Hash shoot(Film& film, const Image& frame);

/// The pixels of a picture, empty where the film has none of that hash.
std::vector<Colour> pictureOf(const Film& film, Hash hash);

void saveFilm(const Film& film, const std::string& path);

/// A film without pictures where there is no file.
Film loadFilm(const std::string& path);

}  // namespace gloomdeck
