// Lines, circles and glyphs pixel by pixel, boxes and images by the kernels.
#include "platform/draw.h"

#include <algorithm>
#include <cstdlib>

#include "platform/font.h"
#include "platform/frame.h"
#include "platform/kernels.h"

namespace gloomdeck {

namespace {

Colour textColour = 0xFFFFFFFF;
Colour backgroundColour = 0xFF000000;

Colour* rowAt(int y) { return screen().pixels.data() + y * screen().width; }

void changedBetween(int y1, int y2) {
    const Rect& clip = clipRect();
    frameChanged({std::max(std::min(y1, y2), clip.y1), std::min(std::max(y1, y2), clip.y2)});
}

void setPixel(int x, int y, Colour colour) {
    if (contains(clipRect(), x, y)) rowAt(y)[x] = colour;
}

void fillClipped(const Rect& wanted, Colour colour) {
    const Rect r = intersection(wanted, clipRect());
    if (isEmpty(r)) return;
    fillRows(rowAt(r.y1) + r.x1, screen().width, r.x2 - r.x1 + 1, r.y2 - r.y1 + 1, colour);
    frameChanged({r.y1, r.y2});
}

// Bresenham's line: a whole-number error term decides between the straight and the diagonal step.
void drawSlopedLine(int x1, int y1, int x2, int y2, Colour colour) {
    const int dx = std::abs(x2 - x1);
    const int dy = -std::abs(y2 - y1);
    const int stepX = x1 < x2 ? 1 : -1;
    const int stepY = y1 < y2 ? 1 : -1;
    const Rows span{y1, y2};
    int error = dx + dy;
    while (true) {
        setPixel(x1, y1, colour);
        if (x1 == x2 && y1 == y2) break;
        const int twice = 2 * error;
        if (twice >= dy) {
            error += dy;
            x1 += stepX;
        }
        if (twice <= dx) {
            error += dx;
            y1 += stepY;
        }
    }
    changedBetween(span.first, span.last);
}

void setOctants(int cx, int cy, int x, int y, Colour colour) {
    for (const int sx : {x, -x})
        for (const int sy : {y, -y}) {
            setPixel(cx + sx, cy + sy, colour);
            setPixel(cx + sy, cy + sx, colour);
        }
}

void drawGlyph(int x, int y, const Glyph& glyph, Colour colour) {
    const Rect part = intersection({x, y, x + glyphSize - 1, y + glyphSize - 1}, clipRect());
    for (int row = part.y1; row <= part.y2; ++row)
        for (int column = part.x1; column <= part.x2; ++column)
            if ((glyph[static_cast<std::size_t>(row - y)] >> (glyphSize - 1 - (column - x))) & 1)
                rowAt(row)[column] = colour;
}

void putRows(const PixelRows& rows, PutMode mode) {
    switch (mode.kind) {
        case PutMode::Kind::copy: return copyRows(rows);
        case PutMode::Kind::transparent: return copyRowsTransparent(rows);
        case PutMode::Kind::blend: return blendRows(rows, mode.alpha);
    }
}

}  // namespace

void setDefaultColours(Colour text, Colour background) {
    textColour = text;
    backgroundColour = background;
}

void clearScreen() {
    Image& frame = screen();
    if (!frame.pixels.empty())
        fillRows(frame.pixels.data(), frame.width, frame.width, frame.height, backgroundColour);
    frameChanged();
}

void drawLine(int x1, int y1, int x2, int y2, Colour colour) {
    if (x1 == x2 || y1 == y2)
        fillClipped(spanning(x1, y1, x2, y2), colour);
    else
        drawSlopedLine(x1, y1, x2, y2, colour);
}

void drawBox(int x1, int y1, int x2, int y2, Colour colour) {
    drawLine(x1, y1, x2, y1, colour);
    drawLine(x1, y2, x2, y2, colour);
    drawLine(x1, y1, x1, y2, colour);
    drawLine(x2, y1, x2, y2, colour);
}

void fillBox(int x1, int y1, int x2, int y2, Colour colour) { fillClipped(spanning(x1, y1, x2, y2), colour); }

// The midpoint circle: one octant walked in whole numbers, mirrored eight times.
void drawCircle(int cx, int cy, int radius, Colour colour) {
    int error = 1 - radius;
    for (int x = radius, y = 0; x >= y; ++y) {
        setOctants(cx, cy, x, y, colour);
        if (error >= 0) {
            --x;
            error -= 2 * x;
        }
        error += 2 * y + 3;
    }
    changedBetween(cy - radius, cy + radius);
}

void drawText(int x, int y, std::string_view text, Colour colour) {
    for (const char character : text) {
        drawGlyph(x, y, glyphOf(character), colour);
        x += glyphSize;
    }
    changedBetween(y, y + glyphSize - 1);
}

void drawText(int x, int y, std::string_view text) { drawText(x, y, text, textColour); }

void putImage(int x, int y, const Image& image, PutMode mode) {
    const Rect part = intersection({x, y, x + image.width - 1, y + image.height - 1}, clipRect());
    if (isEmpty(part)) return;
    putRows(rowsOf(screen(), part, image, {x, y}), mode);
    frameChanged({part.y1, part.y2});
}

}  // namespace gloomdeck
