// The pixel loops. Each is written once over blocks of pixels, and compiled for the registers that every
// processor of its kind has and, where there are some, for wider ones.
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
[[gnu::always_inline]] inline void mixBlock(const Colour* to, const Colour* from, Mix mix,
                                            typename Block<size>::Pixels& mixed) {
    typename Block<size>::Pixels d;
    typename Block<size>::Pixels s;
    std::memcpy(&d, to, size);
    std::memcpy(&s, from, size);
    mixed = d;
    mix.template mix<size>(mixed, s);
    mixed = (s & 0x00FFFFFF) == (transparentColour & 0x00FFFFFF) ? d : mixed;
}

// The last block may overlap the one before it: it is mixed before anything is written, so that no pixel is
// mixed twice.
template <int size, typename Mix>
[[gnu::always_inline]] inline void drawRow(Colour* to, const Colour* from, int width, Mix mix) {
    const int end = width - pixelsIn<size>;
    typename Block<size>::Pixels last;
    mixBlock<size>(to + end, from + end, mix, last);
    for (int x = 0; x < end; x += pixelsIn<size>) {
        typename Block<size>::Pixels mixed;
        mixBlock<size>(to + x, from + x, mix, mixed);
        std::memcpy(to + x, &mixed, size);
    }
    std::memcpy(to + end, &last, size);
}

// In blocks of that size, or of the largest that rows so narrow have room for. The record is taken by value,
// as otherwise every pixel that is written might be a part of it.
template <int size, typename Mix>
[[gnu::always_inline]] inline void drawRows(PixelRows rows, Mix mix) {
    if constexpr (pixelsIn < size >> 1)
        if (rows.width < pixelsIn<size>) return drawRows<size / 2>(rows, mix);
    for (; rows.height > 0; --rows.height, rows.to += rows.toStep, rows.from += rows.fromStep)
        drawRow<size>(rows.to, rows.from, rows.width, mix);
}

template <int size>
[[gnu::always_inline]] inline void fillRow(Colour* to, int width,
                                           const typename Block<size>::Pixels& colours) {
    const int end = width - pixelsIn<size>;
    for (int x = 0; x < end; x += pixelsIn<size>) std::memcpy(to + x, &colours, size);
    std::memcpy(to + end, &colours, size);
}

template <int size>
[[gnu::always_inline]] inline void fillRowsBy(Colour* to, int step, int width, int height, Colour colour) {
    if constexpr (pixelsIn < size >> 1)
        if (width < pixelsIn<size>) return fillRowsBy<size / 2>(to, step, width, height, colour);
    const typename Block<size>::Pixels colours = typename Block<size>::Pixels{} + colour;
    for (; height > 0; --height, to += step) fillRow<size>(to, width, colours);
}

constexpr int commonSize = 16;  // bytes

#ifdef __x86_64__
#define WIDE [[gnu::target("avx2")]]
constexpr int wideSize = 32;
bool hasWideRegisters() { return static_cast<bool>(__builtin_cpu_supports("avx2")); }
#else
#define WIDE
constexpr int wideSize = commonSize;
bool hasWideRegisters() { return false; }
#endif

WIDE void replaceWide(const PixelRows& rows) { drawRows<wideSize>(rows, Replace{}); }
WIDE void blendWide(const PixelRows& rows, Blend blend) { drawRows<wideSize>(rows, blend); }
WIDE void fillWide(Colour* to, int step, int width, int height, Colour colour) {
    fillRowsBy<wideSize>(to, step, width, height, colour);
}

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

void fillRows(Colour* to, int step, int width, int height, Colour colour) {
    if (isWide) return fillWide(to, step, width, height, colour);
    fillRowsBy<commonSize>(to, step, width, height, colour);
}

bool useWideRegisters(bool wanted) {
    isWide = wanted && hasWideRegisters();
    return isWide;
}

}  // namespace gloomdeck
