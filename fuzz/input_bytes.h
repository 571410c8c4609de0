// The bytes of one fuzzed input, read from the front.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace gloomdeck::fuzz {

struct InputBytes {
    std::span<const std::uint8_t> left;

    bool empty() const { return left.empty(); }

    /// The next byte; 0 once all are used up.
    int byte() {
        if (left.empty()) return 0;
        const int value = left.front();
        left = left.subspan(1);
        return value;
    }

    /// 0 to n - 1.
    int below(int n) { return byte() % n; }

    std::int32_t word() {
        std::uint32_t value = 0;
        for (int shift = 0; shift < 32; shift += 8) value |= static_cast<std::uint32_t>(byte()) << shift;
        return static_cast<std::int32_t>(value);
    }
};

}  // namespace gloomdeck::fuzz
