// Every loop is written once over blocks of pixels, and compiled for the registers that each processor of its
// kind has and, where there are some, for wider ones.
#include "platform/kernels.h"

#include <cstdint>
#include <cstring>

namespace gloomdeck {

namespace {

// So many bytes of pixels, seen in three ways. Compilers that know no such registers take them apart.
template <int size>
struct Block {
    using Pixels [[gnu::vector_size(size)]] = std::uint32_t;
    using Halves [[gnu::vector_size(size)]] = std::uint16_t;
    using Channels [[gnu::vector_size(size)]] = std::uint8_t;
};

template <int size>
constexpr int pixelsIn = size / static_cast<int>(sizeof(Colour));

struct Replace {
    template <int size>
    [[gnu::always_inline]] void mix(typename Block<size>::Pixels& to,
                                    const typename Block<size>::Pixels& from) const {
        to = from;
    }
};

// The share of the distance is rounded down and taken from a falling channel, so that this is rounded up. A
// half holds two channels; its share needs none of its neighbour's bits.
struct Blend {
    std::uint16_t alpha;

    template <int size>
    [[gnu::always_inline]] void mix(typename Block<size>::Pixels& to,
                                    const typename Block<size>::Pixels& from) const {
        using Channels = typename Block<size>::Channels;
        using Halves = typename Block<size>::Halves;
        const auto d = (Channels)to;
        const auto s = (Channels)from;
        const auto falls = (Channels)(s < d);
        const auto distance = (Halves)(((s - d) ^ falls) - falls);
        const Halves share = (((distance & 0xFF) * alpha) >> 8) | (((distance >> 8) * alpha) & 0xFF00);
        to = (typename Block<size>::Pixels)(d + (((Channels)share ^ falls) - falls));
    }
};

template <int size, typename Mix>
[[gnu::always_inline]] inline void drawBlock(const Colour* to, const Colour* from, Colour* result, Mix mix) {
    typename Block<size>::Pixels d;
    typename Block<size>::Pixels s;
    std::memcpy(&d, to, size);
    std::memcpy(&s, from, size);
    auto mixed = d;
    mix.template mix<size>(mixed, s);
    mixed = (s & 0x00FFFFFF) == (transparentColour & 0x00FFFFFF) ? d : mixed;
    std::memcpy(result, &mixed, size);
}

// The last block may overlap the one before it: it is mixed before anything is written, so that no pixel is
// mixed twice.
template <int size, typename Mix>
[[gnu::always_inline]] inline void drawRow(Colour* to, const Colour* from, int width, Mix mix) {
    constexpr int step = pixelsIn<size>;
    const int end = width - step;
    Colour last[step];
    drawBlock<size>(to + end, from + end, last, mix);
    for (int x = 0; x < end; x += step) drawBlock<size>(to + x, from + x, to + x, mix);
    std::memcpy(to + end, last, size);
}

// In blocks of that size, or of the largest that rows so narrow have room for.
template <int size, typename Mix>
[[gnu::always_inline]] inline void drawRows(const PixelRows& rows, Mix mix) {
    if constexpr (pixelsIn < size >> 1)
        if (rows.width < pixelsIn<size>) return drawRows<size / 2>(rows, mix);
    Colour* to = rows.to;
    const Colour* from = rows.from;
    for (int y = 0; y < rows.height; ++y, to += rows.toStep, from += rows.fromStep)
        drawRow<size>(to, from, rows.width, mix);
}

constexpr int commonSize = 16;  // bytes

#ifdef __x86_64__
constexpr int wideSize = 32;

[[gnu::target("avx2")]] void replaceWide(const PixelRows& rows) { drawRows<wideSize>(rows, Replace{}); }
[[gnu::target("avx2")]] void blendWide(const PixelRows& rows, Blend blend) {
    drawRows<wideSize>(rows, blend);
}

bool hasWideRegisters() { return static_cast<bool>(__builtin_cpu_supports("avx2")); }
#else
void replaceWide(const PixelRows& rows) { drawRows<commonSize>(rows, Replace{}); }
void blendWide(const PixelRows& rows, Blend blend) { drawRows<commonSize>(rows, blend); }

bool hasWideRegisters() { return false; }
#endif

bool isWide = hasWideRegisters();

}  // namespace

void copyRows(const PixelRows& rows) {
    const auto size = static_cast<std::size_t>(rows.width) * sizeof(Colour);
    Colour* to = rows.to;
    const Colour* from = rows.from;
    for (int y = 0; y < rows.height; ++y, to += rows.toStep, from += rows.fromStep)
        std::memcpy(to, from, size);
}

void copyRowsTransparent(const PixelRows& rows) {
    if (isWide) return replaceWide(rows);
    drawRows<commonSize>(rows, Replace{});
}

void blendRows(const PixelRows& rows, int alpha) {
    const Blend blend{static_cast<std::uint16_t>(alpha)};
    if (isWide) return blendWide(rows, blend);
    drawRows<commonSize>(rows, blend);
}

bool useWideRegisters(bool wanted) {
    isWide = wanted && hasWideRegisters();
    return isWide;
}

}  // namespace gloomdeck
