// A button's look, in boxes and text.
#include "platform/button_face.h"

#include "platform/draw.h"
#include "platform/palette.h"

namespace gloomdeck {

void drawButtonFace(const ButtonFace& button) {
    const Rect& box = button.box;
    drawBox(box.x1, box.y1, box.x2 + 1, box.y2 + 1, colour::black);
    drawBox(box.x1, box.y1, box.x2, box.y2, button.outline);
    redrawButtonInside(button);
}

void redrawButtonInside(const ButtonFace& button) {
    const Rect& box = button.box;
    fillBox(box.x1 + 1, box.y1 + 1, box.x2 - 1, box.y2 - 1, button.face);
    drawText(button.captionPlace.x, button.captionPlace.y, button.caption, button.ink);
}

}  // namespace gloomdeck
