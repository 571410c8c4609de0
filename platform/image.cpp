#include "platform/image.h"

#include <algorithm>

#include "platform/frame.h"
#include "platform/kernels.h"

namespace gloomdeck {

namespace {

Colour* pixelAt(Image& image, int x, int y) { return image.pixels.data() + y * image.width + x; }
const Colour* pixelAt(const Image& image, int x, int y) { return image.pixels.data() + y * image.width + x; }

// What lies in the part of the destination, drawn from the source whose corner stands at the place.
PixelRows rowsOf(Image& destination, const Rect& part, const Image& source, Point corner) {
    return {.to = pixelAt(destination, part.x1, part.y1),
            .toStep = destination.width,
            .from = pixelAt(source, part.x1 - corner.x, part.y1 - corner.y),
            .fromStep = source.width,
            .width = part.x2 - part.x1 + 1,
            .height = part.y2 - part.y1 + 1};
}

void putRows(const PixelRows& rows, PutMode mode) {
    switch (mode.kind) {
        case PutMode::Kind::copy: return copyRows(rows);
        case PutMode::Kind::transparent: return copyRowsTransparent(rows);
        case PutMode::Kind::blend: return blendRows(rows, mode.alpha);
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
    const Rect target{part.x1 - wanted.x1, part.y1 - wanted.y1, part.x2 - wanted.x1, part.y2 - wanted.y1};
    copyRows(rowsOf(destination, target, source, {-wanted.x1, -wanted.y1}));
}

void putImage(int x, int y, const Image& image, PutMode mode) {
    const Rect part = intersection({x, y, x + image.width - 1, y + image.height - 1}, clipRect());
    if (isEmpty(part)) return;
    putRows(rowsOf(screen(), part, image, {x, y}), mode);
    frameChanged({part.y1, part.y2});
}

}  // namespace gloomdeck
