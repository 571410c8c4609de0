#include "platform/image.h"

#include <algorithm>

#include "platform/frame.h"
#include "platform/kernels.h"

namespace gloomdeck {

namespace {

Colour* pixelAt(Image& image, int x, int y) { return image.pixels.data() + y * image.width + x; }
const Colour* pixelAt(const Image& image, int x, int y) { return image.pixels.data() + y * image.width + x; }

void putRow(Colour* to, const Colour* from, int count, PutMode mode) {
    switch (mode.kind) {
        case PutMode::Kind::copy: return copyRow(to, from, count);
        case PutMode::Kind::transparent: return copyRowTransparent(to, from, count);
        case PutMode::Kind::blend: return blendRow(to, from, count, mode.alpha);
    }
}

}  // namespace

Image createImage(int width, int height) {
    if (width < 1 || height < 1) return {};
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return {.width = width, .height = height, .pixels = std::vector<Colour>(count, transparentColour)};
}

void destroyImage(Image& image) { image = {}; }

void getImage(const Image& source, int x1, int y1, int x2, int y2, Image& destination) {
    const Rect wanted = spanning(x1, y1, x2, y2);
    const Rect fits{wanted.x1, wanted.y1, wanted.x1 + destination.width - 1,
                    wanted.y1 + destination.height - 1};
    const Rect inSource{0, 0, source.width - 1, source.height - 1};
    const Rect part = intersection(intersection(wanted, fits), inSource);
    if (isEmpty(part)) return;
    for (int y = part.y1; y <= part.y2; ++y)
        copyRow(pixelAt(destination, part.x1 - wanted.x1, y - wanted.y1), pixelAt(source, part.x1, y),
                part.x2 - part.x1 + 1);
}

void putImage(int x, int y, const Image& image, PutMode mode) {
    const Rect part = intersection({x, y, x + image.width - 1, y + image.height - 1}, clipRect());
    if (isEmpty(part)) return;
    for (int row = part.y1; row <= part.y2; ++row)
        putRow(pixelAt(screen(), part.x1, row), pixelAt(image, part.x1 - x, row - y), part.x2 - part.x1 + 1,
               mode);
    frameChanged({part.y1, part.y2});
}

}  // namespace gloomdeck
