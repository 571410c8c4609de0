// Making images, and cutting them.
#include "platform/image.h"

namespace gloomdeck {

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

}  // namespace gloomdeck
