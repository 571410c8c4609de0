// Enlarging by whole numbers, shrinking by averages.
#include "platform/scaling.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace gloomdeck {

namespace {

constexpr Extent twiceTheFrame{816, 976};
constexpr int titleBarHeight = 40;      // of most desktops; some have less
constexpr double largestShare = 0.75;   // of the usable room that a window opens in
constexpr double largeDesktop = 1.5;    // from this scale on everything is wanted large
constexpr Extent roomForOne{816, 732};  // usable pixels for each further step of the opening scale
constexpr int largestOpening = 4;

int widthOf(const Rect& r) { return r.x2 - r.x1 + 1; }
int heightOf(const Rect& r) { return r.y2 - r.y1 + 1; }

// The picture's size where not even one multiple fits.
Extent shrunk(Extent frame, Extent area) {
    const bool narrow = area.width * frame.height <= area.height * frame.width;
    if (narrow) return {area.width, std::max(1, area.width * frame.height / frame.width)};
    return {std::max(1, area.height * frame.width / frame.height), area.height};
}

// A constant scale is worth it: the row is then written in whole registers.
template <int scale>
void widenBy(const Colour* __restrict from, int count, Colour* __restrict to) {
    for (int x = 0; x < count; ++x)
        for (int copy = 0; copy < scale; ++copy) to[x * scale + copy] = from[x];
}

void widenRow(const Colour* from, int count, int scale, Colour* to) {
    switch (scale) {
        case 1: std::copy_n(from, count, to); return;
        case 2: return widenBy<2>(from, count, to);
        case 3: return widenBy<3>(from, count, to);
        case 4: return widenBy<4>(from, count, to);
        default:
            for (int x = 0; x < count; ++x) std::fill_n(to + x * scale, scale, from[x]);
    }
}

void enlarge(const Colour* pixels, Extent block, int scale, Colour* target, int pitch) {
    if (scale == 1 && pitch == block.width) {
        std::copy_n(pixels, block.width * block.height, target);
        return;
    }
    for (int y = 0; y < block.height; ++y, pixels += block.width) {
        const Colour* const firstRow = target;
        widenRow(pixels, block.width, scale, target);
        target += pitch;
        for (int copy = 1; copy < scale; ++copy, target += pitch)
            std::copy_n(firstRow, block.width * scale, target);
    }
}

// The mean of a box of pixels, channel by channel.
Colour meanOf(const Colour* pixels, Extent box, int pitch) {
    std::uint32_t red = 0;
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
    for (int y = 0; y < box.height; ++y, pixels += pitch)
        for (int x = 0; x < box.width; ++x) {
            red += pixels[x] >> 16 & 0xFF;
            green += pixels[x] >> 8 & 0xFF;
            blue += pixels[x] & 0xFF;
        }
    const auto count = static_cast<std::uint32_t>(box.width * box.height);
    return 0xFF000000 | red / count << 16 | green / count << 8 | blue / count;
}

void shrink(const Colour* pixels, Extent frame, Extent picture, Colour* target, int pitch) {
    for (int y = 0; y < picture.height; ++y, target += pitch) {
        const int top = y * frame.height / picture.height;
        const int bottom = (y + 1) * frame.height / picture.height;
        for (int x = 0; x < picture.width; ++x) {
            const int left = x * frame.width / picture.width;
            const int right = (x + 1) * frame.width / picture.width;
            const Colour* const corner = pixels + static_cast<std::ptrdiff_t>(top) * frame.width + left;
            target[x] = meanOf(corner, {right - left, bottom - top}, frame.width);
        }
    }
}

}  // namespace

int openingScale(Extent usable, double desktopScale) {
    const double share = desktopScale >= largeDesktop ? 1.0 : largestShare;
    const bool twice = twiceTheFrame.width <= share * usable.width &&
                       twiceTheFrame.height + titleBarHeight <= share * usable.height;
    const int scale = std::min(usable.width / roomForOne.width, usable.height / roomForOne.height);
    return std::clamp(scale, twice ? 2 : 1, largestOpening);
}

Rect fitFrame(Extent frame, Extent area) {
    const int scale = std::min(area.width / frame.width, area.height / frame.height);
    const Extent picture =
        scale >= 1 ? Extent{frame.width * scale, frame.height * scale} : shrunk(frame, area);
    const int x = (area.width - picture.width) / 2;
    const int y = (area.height - picture.height) / 2;
    return {x, y, x + picture.width - 1, y + picture.height - 1};
}

std::optional<Point> framePixelAt(Extent frame, const Rect& fit, int x, int y) {
    if (!contains(fit, x, y)) return std::nullopt;
    return Point{(x - fit.x1) * frame.width / widthOf(fit), (y - fit.y1) * frame.height / heightOf(fit)};
}

Rect drawFitted(Extent frame, const Colour* pixels, Rows rows, const Rect& fit, Colour* area, int pitch) {
    const auto placeOf = [&](int y) { return area + std::ptrdiff_t{y} * pitch + fit.x1; };
    const Extent picture{widthOf(fit), heightOf(fit)};
    if (picture.width < frame.width || picture.height < frame.height) {
        shrink(pixels, frame, picture, placeOf(fit.y1), pitch);
        return fit;
    }
    const int scale = picture.width / frame.width;
    const Rect drawn{fit.x1, fit.y1 + rows.first * scale, fit.x2, fit.y1 + (rows.last + 1) * scale - 1};
    const Extent block{frame.width, rows.last - rows.first + 1};
    enlarge(pixels + std::ptrdiff_t{rows.first} * frame.width, block, scale, placeOf(drawn.y1), pitch);
    return drawn;
}

}  // namespace gloomdeck
