#include "tests/support/golden.h"

#include <gtest/gtest.h>
#include <png.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "platform/frame.h"

namespace gloomdeck {

namespace {

constexpr int pixelFormat = PNG_FORMAT_BGRA;  // as the frame's pixels lie in memory
using Pixels = std::vector<Colour>;

png_image pictureOf(int width, int height) {
    png_image picture{};
    picture.version = PNG_IMAGE_VERSION;
    picture.width = static_cast<png_uint_32>(width);
    picture.height = static_cast<png_uint_32>(height);
    picture.format = pixelFormat;
    return picture;
}

void writePicture(const std::string& path, const Image& image) {
    png_image picture = pictureOf(image.width, image.height);
    EXPECT_TRUE(png_image_write_to_file(&picture, path.c_str(), 0, image.pixels.data(), 0, nullptr))
        << path << ": " << picture.message;
}

// Empty when there is none of the frame's size.
Pixels readPicture(const std::string& path, const Image& like) {
    png_image picture = pictureOf(0, 0);
    if (!png_image_begin_read_from_file(&picture, path.c_str())) return {};
    picture.format = pixelFormat;
    Pixels pixels(like.pixels.size());
    const bool fits = picture.width == static_cast<png_uint_32>(like.width) &&
                      picture.height == static_cast<png_uint_32>(like.height);
    if (fits && png_image_finish_read(&picture, nullptr, pixels.data(), 0, nullptr)) return pixels;
    png_image_free(&picture);
    return {};
}

}  // namespace

void expectGoldenFrame(const std::string& name) {
    const std::string base = std::string(GLOOMDECK_GOLDEN_FOLDER) + "/" + name;
    const Image& actual = screen();
    if (std::getenv("GLOOMDECK_REFRESH_GOLDEN")) writePicture(base + ".png", actual);
    const Pixels expected = readPicture(base + ".png", actual);
    if (expected == actual.pixels) return;
    writePicture(base + ".actual.png", actual);
    if (expected.empty()) FAIL() << "no golden frame " << name;
    const auto [mine, theirs] = std::mismatch(expected.begin(), expected.end(), actual.pixels.begin());
    const auto at = static_cast<int>(mine - expected.begin());
    FAIL() << name << " differs first at (" << at % actual.width << ", " << at / actual.width
           << "): " << std::hex << *theirs << " instead of " << *mine << "; see " << name
           << ".actual.png beside it";
}

}  // namespace gloomdeck
