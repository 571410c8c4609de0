#include "platform/kernels.h"

#include <cstring>

namespace gloomdeck {

namespace {

// d + (s - d) * a / 256 with division toward zero: a falling channel is rounded up.
constexpr std::uint32_t blendChannel(std::uint32_t d, std::uint32_t s, std::uint32_t alpha) {
    return (d * (256 - alpha) + s * alpha + (s < d ? 255U : 0U)) >> 8;
}

constexpr Colour blendPixel(Colour d, Colour s, std::uint32_t alpha) {
    Colour mixed = 0;
    for (int shift = 0; shift < 32; shift += 8)
        mixed |= blendChannel((d >> shift) & 0xFF, (s >> shift) & 0xFF, alpha) << shift;
    return mixed;
}

}  // namespace

void copyRow(Colour* to, const Colour* from, int count) {
    std::memcpy(to, from, static_cast<std::size_t>(count) * sizeof(Colour));
}

void copyRowTransparent(Colour* __restrict to, const Colour* __restrict from, int count) {
    for (int i = 0; i < count; ++i) to[i] = isTransparent(from[i]) ? to[i] : from[i];
}

void blendRow(Colour* __restrict to, const Colour* __restrict from, int count, int alpha) {
    const auto a = static_cast<std::uint32_t>(alpha);
    for (int i = 0; i < count; ++i) to[i] = isTransparent(from[i]) ? to[i] : blendPixel(to[i], from[i], a);
}

}  // namespace gloomdeck
