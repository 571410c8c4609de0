// SVG text.
#include "art/svg.h"

#include <cstdio>

namespace gloomdeck::art {
namespace {

int runLength(const Canvas& picture, int x, int y) {
    int n = 1;
    while (x + n < picture.width() && picture.painted(x + n, y) &&
           picture.colour(x + n, y) == picture.colour(x, y)) {
        ++n;
    }
    return n;
}

std::string rectangle(int x, int y, int w, Colour c) {
    char text[96];
    std::snprintf(text, sizeof text, "<rect x=\"%d\" y=\"%d\" width=\"%d\" height=\"1\" fill=\"#%06x\"/>\n",
                  x, y, w, c);
    return text;
}

}  // namespace

std::string svgFile(const Canvas& picture) {
    const std::string w = std::to_string(picture.width()), h = std::to_string(picture.height());
    std::string out = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + w + "\" height=\"" + h +
                      "\" viewBox=\"0 0 " + w + " " + h + "\" shape-rendering=\"crispEdges\">\n";
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width();) {
            const int n = picture.painted(x, y) ? runLength(picture, x, y) : 1;
            if (picture.painted(x, y)) out += rectangle(x, y, n, picture.colour(x, y));
            x += n;
        }
    }
    return out + "</svg>\n";
}

}  // namespace gloomdeck::art
