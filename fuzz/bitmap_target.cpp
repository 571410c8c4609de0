// Any bytes as a bitmap file, copied to targets of several sizes.
#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "fuzz/fault.h"
#include "fuzz/target.h"
#include "platform/bitmap.h"
#include "platform/frame.h"

namespace gloomdeck::fuzz {

namespace {

constexpr std::array<Point, 6> sizes{
    {{0, 0}, {1, 1}, {3, 2}, {32, 32}, {1568, 32}, {frameWidth, frameHeight}}};
constexpr Colour untouched = 0x12345678;  // not opaque, unlike all that is read

std::vector<Image> makeTargets() {
    std::vector<Image> targets;
    for (const Point& size : sizes) {
        targets.push_back(createImage(size.x, size.y));
        std::fill(targets.back().pixels.begin(), targets.back().pixels.end(), untouched);
    }
    return targets;
}

Colour& pixel(Image& image, int x, int y) {
    const int index = y * image.width + x;
    return image.pixels[static_cast<std::size_t>(index)];
}

// What was read fills a rectangle from the top left.
Point readSize(Image& target) {
    Point size;
    while (size.x < target.width && pixel(target, size.x, 0) != untouched) ++size.x;
    while (size.y < target.height && pixel(target, 0, size.y) != untouched) ++size.y;
    return size;
}

void checkPixel(Colour read, Image& largest, int x, int y) {
    if (read >> 24 != 0xFF) fault("a pixel is not opaque");
    if (y < largest.height && x < largest.width && read != pixel(largest, x, y))
        fault("the pixels depend on the size of the target");
}

void checkTarget(Image& target, Image& largest, bool found) {
    if (target.pixels.empty()) return;
    const Point size = readSize(target);
    if (found != (size.x > 0)) fault("the answer is not what was done");
    for (int y = 0; y < size.y; ++y)
        for (int x = 0; x < size.x; ++x) checkPixel(pixel(target, x, y), largest, x, y);
}

void forget(Image& target) {
    const Point size = readSize(target);
    for (int y = 0; y < size.y; ++y) std::fill_n(&pixel(target, 0, y), size.x, untouched);
}

}  // namespace

}  // namespace gloomdeck::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gloomdeck;
    static std::vector<Image> targets = fuzz::makeTargets();
    const Bytes file(data, data + size);
    Image& largest = targets.back();
    const std::string_view wrong = decodeBitmap(file, largest);
    const bool found = wrong.empty();
    for (Image& target : targets) {
        if (decodeBitmap(file, target) != wrong) fuzz::fault("the answer depends on the size of the target");
        fuzz::checkTarget(target, largest, found);
    }
    for (Image& target : targets)
        if (found && !target.pixels.empty()) fuzz::forget(target);
    return 0;
}
