// PNG files through the library's simplified interface.
#include "art/png_file.h"

#include <png.h>

#include <stdexcept>
#include <vector>

namespace gloomdeck::art {
namespace {

std::vector<std::uint8_t> rgbaBytes(const Canvas& picture) {
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const bool solid = picture.painted(x, y);
            const Colour c = solid ? picture.colour(x, y) : 0;
            for (const int bits : {16, 8, 0}) bytes.push_back(static_cast<std::uint8_t>(c >> bits & 255));
            bytes.push_back(solid ? 255 : 0);
        }
    }
    return bytes;
}

}  // namespace

std::string pngFile(const Canvas& picture) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width());
    image.height = static_cast<png_uint_32>(picture.height());
    image.format = PNG_FORMAT_RGBA;
    const std::vector<std::uint8_t> bytes = rgbaBytes(picture);
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::string file(size, '\0');
    if (png_image_write_to_memory(&image, file.data(), &size, 0, bytes.data(), 0, nullptr) == 0) {
        throw std::runtime_error(std::string("cannot encode a picture: ") + image.message);
    }
    file.resize(size);
    return file;
}

}  // namespace gloomdeck::art
