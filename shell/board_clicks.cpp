// By the targeting mode: a bolt, a bomb, a hand, or meeting the bottom tile.
#include "shell/board_clicks.h"

#include "rules/encounter.h"
#include "rules/game_state.h"
#include "rules/spells.h"
#include "shell/play/target_mode.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

namespace {

int meetBottomTile(int col, int row) {
    if (row != bottomRow || column(col).finished) return 0;
    return Encounter(col, row, 0);
}

int strikeColumn(int col) {
    if (column(col).finished) return 0;
    CastLightning(1, col);
    setTargetMode(target::none);
    return 1;
}

int placeBomb(int col, int row) {
    DropBomb(1, 1, col, row);
    setTargetMode(target::none);
    return 1;
}

int reachFor(int col, int row) {
    const int used = UseHand(col, row);
    setTargetMode(target::none);
    return used;
}

}  // namespace

int clickBoard(int col, int row) {
    switch (ui.targetMode) {
        case target::lightning: return strikeColumn(col);
        case target::bomb: return placeBomb(col, row);
        case target::hand: return reachFor(col, row);
        default: return meetBottomTile(col, row);
    }
}

}  // namespace gloomdeck
