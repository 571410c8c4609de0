// Face, outline and caption where the record places them.
#include "shell/widgets/button.h"

#include "platform/button_face.h"
#include "platform/draw.h"
#include "platform/palette.h"
#include "platform/rounding.h"

namespace gloomdeck {

namespace {

constexpr int captionPitch = 7;  // captions are placed for 7 pixels a character

}  // namespace

void initButton(Button& b) { b = {}; }

void copyButton(Button& destination, const Button& source) { destination = source; }

void placeButton(Button& b, int x, int y) {
    b.x = x;
    b.y = y;
}

Point captionPlace(const Button& b) {
    const int length = static_cast<int>(b.caption.size());
    return {roundedRatio(2 * b.x + b.width - length * captionPitch, 2),
            roundedRatio(2 * b.y + b.height - 6, 2)};
}

void drawButton(const Button& b) {
    const Point at = captionPlace(b);
    drawButtonFace({.box = {b.x, b.y, b.x + b.width, b.y + b.height},
                    .face = colour::face,
                    .outline = colour::edge,
                    .ink = colour::edge,
                    .caption = b.caption,
                    .captionPlace = at});
    if (b.hotkeyLetter) drawText(at.x, at.y, b.caption.substr(0, 1), colour::yellow);
}

void showButton(Button& b, const std::string& caption) {
    b.hidden = false;
    if (!caption.empty()) b.caption = caption;
    drawButton(b);
}

void eraseButton(const Button& b) { fillBox(b.x, b.y, b.x + b.width + 1, b.y + b.height + 1, colour::panel); }

}  // namespace gloomdeck
