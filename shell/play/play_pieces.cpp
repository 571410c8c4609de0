// The mode's icon and the blank information area.
#include "shell/play/play_pieces.h"

#include "platform/draw.h"
#include "platform/palette.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/places.h"
#include "shell/widgets/screen_lock.h"
#include "shell/widgets/tile_set.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

int modeTile() {
    switch (ui.targetMode) {
        case target::lightning: return tile::lightning;
        case target::bomb: return tile::bomb;
        case target::hand: return tile::hand;
        default: return tile::empty;
    }
}

void drawModeIcon() {
    const Rect& box = place::modeIcon;
    fillBox(box.x1, box.y1, box.x2, box.y2, colour::panel);
    putTile(modeTile(), box.x1, box.y1, putTransparent);
}

void clearInfoArea() {
    const HeldScreen held;
    const Rect& area = place::infoArea;
    frameBox(area.x1, area.y1, area.x2, area.y2);
}

}  // namespace gloomdeck
