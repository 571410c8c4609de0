// The one home of rounding: whole numbers only, halves to the even neighbour.
#pragma once

#include <cstdint>

namespace gloomdeck {

/// numerator / denominator rounded to the nearest integer, ties to even. The denominator must be above 0.
constexpr std::int64_t roundedQuotient(std::int64_t numerator, std::int64_t denominator) {
    std::int64_t floor = numerator / denominator;
    if (numerator % denominator < 0) --floor;
    const std::int64_t twiceRest = 2 * (numerator - floor * denominator);
    const bool up = twiceRest > denominator || (twiceRest == denominator && floor % 2 != 0);
    return up ? floor + 1 : floor;
}

/// The same for values of screen and rule size.
constexpr int roundedRatio(std::int64_t numerator, std::int64_t denominator) {
    return static_cast<int>(roundedQuotient(numerator, denominator));
}

}  // namespace gloomdeck
