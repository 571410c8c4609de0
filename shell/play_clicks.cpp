#include "shell/play_clicks.h"

#include <string>

#include "rules/catalogue.h"
#include "rules/encounter.h"
#include "rules/game_state.h"
#include "rules/spells.h"
#include "rules/training/training_screen.h"
#include "shell/play/target_mode.h"
#include "shell/play_screen.h"
#include "shell/widgets/messages.h"
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

int cast(void (*spell)()) {
    spell();
    return 1;
}

int arm(int mode) {
    setTargetMode(mode);
    return 0;
}

int say(const std::string& text) {
    ShowMessage(text, 0);
    return 0;
}

int openTraining() {
    TrainingScreen();
    enterPlayScreen();
    return 0;
}

int useItem(int row, const std::string& name) {
    switch (row) {
        case suns: return cast(CastSun);
        case shields: return cast(CastShield);
        case bombs: return arm(target::bomb);
        case lightningBolts: return arm(target::lightning);
        case hands: return arm(target::hand);
        case gold: return openTraining();
        default: return say("You have " + std::to_string(count(row)) + " " + name + ".");
    }
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

int clickStats(int row) {
    if (ui.targetMode != target::none) {
        ShowMessage("Spell canceled.", 0);
        return arm(target::none);
    }
    const ItemType& type = itemType(row);
    const std::string name(type.name);
    if (count(row) < 1 && row != gold) return say("You have no " + name + (type.usable ? " to use." : "."));
    return useItem(row, name);
}

}  // namespace gloomdeck
