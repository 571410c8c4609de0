#include "platform/random.h"

#include <bit>
#include <cstdint>
#include <random>

namespace gloomdeck {

namespace {

std::mt19937_64 generator;
RandomSource otherSource = nullptr;

}  // namespace

void randomize(double seed) { generator.seed(std::bit_cast<std::uint64_t>(seed)); }

double rnd() {
    if (otherSource) return otherSource();
    return static_cast<double>(generator() >> 11) * 0x1.0p-53;
}

void useRandomSource(RandomSource source) { otherSource = source; }

}  // namespace gloomdeck
