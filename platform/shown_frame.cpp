// Rows compared and kept one by one.
#include "platform/shown_frame.h"

#include <cstddef>
#include <cstring>

namespace gloomdeck {

namespace {

bool takeOverRow(Image& shown, const Image& frame, int y) {
    const auto size = static_cast<std::size_t>(frame.width) * sizeof(Colour);
    Colour* const before = shown.pixels.data() + y * frame.width;
    const Colour* const now = frame.pixels.data() + y * frame.width;
    if (std::memcmp(before, now, size) == 0) return false;
    std::memcpy(before, now, size);
    return true;
}

}  // namespace

std::span<const Rows> takeOver(ShownFrame& shown, const Image& frame, Rows rows) {
    std::vector<Rows>& differing = shown.differing;
    differing.clear();
    for (int y = rows.first; y <= rows.last; ++y) {
        if (!takeOverRow(shown.picture, frame, y)) continue;
        if (differing.empty() || differing.back().last != y - 1) differing.push_back({y, y});
        differing.back().last = y;
    }
    return differing;
}

}  // namespace gloomdeck
