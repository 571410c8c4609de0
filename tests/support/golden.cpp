#include <png.h>

#include <cstdlib>

#include "platform/frame.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr int pixelFormat = PNG_FORMAT_BGRA;  // as the frame's pixels lie in memory

void write(const std::string& path) {
    png_image picture{};
    picture.version = PNG_IMAGE_VERSION;
    picture.width = static_cast<png_uint_32>(screen().width);
    picture.height = static_cast<png_uint_32>(screen().height);
    picture.format = pixelFormat;
    png_image_write_to_file(&picture, path.c_str(), 0, screen().pixels.data(), 0, nullptr);
}

std::vector<Colour> read(const std::string& path) {
    png_image picture{};
    picture.version = PNG_IMAGE_VERSION;
    png_image_begin_read_from_file(&picture, path.c_str());
    picture.format = pixelFormat;
    std::vector<Colour> pixels(std::size_t{picture.width} * picture.height);
    png_image_finish_read(&picture, nullptr, pixels.data(), 0, nullptr);
    return pixels;
}

}  // namespace

void expectGoldenFrame(const std::string& name) {
    const std::string base = std::string(GLOOMDECK_GOLDEN_FOLDER) + "/" + name;
    if (std::getenv("GLOOMDECK_REFRESH_GOLDEN")) write(base + ".png");
    if (read(base + ".png") == screen().pixels) return;
    write(base + ".actual.png");
    ADD_FAILURE() << "not as kept: compare " << base << ".actual.png";
}

}  // namespace gloomdeck
