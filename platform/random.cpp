// The generator, and another source in its place.
#include "platform/random.h"

#include <cstdint>
#include <cstring>
#include <random>

namespace gloomdeck {

namespace {

std::mt19937_64 generator;
RandomSource otherSource = nullptr;

}  // namespace

void randomize(double seed) {
    std::uint64_t bits = 0;
    static_assert(sizeof bits == sizeof seed);
    std::memcpy(&bits, &seed, sizeof bits);  // not every standard library has bit_cast yet
    generator.seed(bits);
}

double rnd() {
    if (otherSource) return otherSource();
    return static_cast<double>(generator() >> 11) * 0x1.0p-53;
}

void useRandomSource(RandomSource source) { otherSource = source; }

}  // namespace gloomdeck
