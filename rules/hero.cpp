// Each change is added, shown, and highlighted for the turn and the next one.
#include "rules/hero.h"

#include <algorithm>

#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

constexpr int highlightLasts = 2;  // board turns

// Columns that look another way when a magic sight begins or ends.
void redrawEyeColumns() {
    for (int col = 0; col < columnCount; ++col)
        if (highestEye(col, bottomRow - 1, Sight::ignored) != none) drawColumn(col);
}

}  // namespace

void AddItem(int item, int n) {
    addTo(count(item), n);
    addTo(itemType(item).turnChange, n);
    drawItemCount(item, n);
    if (n != 0) itemType(item).highlightTurns = highlightLasts;
}

void ChangeSkill(int skill, int n) {
    addTo(level(skill), n);
    level(skill) = std::min(level(skill), highestSkill);
    drawSkill(skill, n);
    if (n != 0) skillType(skill).highlightTurns = highlightLasts;
}

void ChangePower(int power, int n, int forceIcon, int noEyeRefresh) {
    const bool withIcon = forceIcon == 1 || turnsLeft(power) == 0;
    addTo(turnsLeft(power), n);
    drawPower(power, withIcon);
    if (power == magicSight && withIcon && noEyeRefresh != 1) redrawEyeColumns();
}

void PowersTick() {
    for (int power = 0; power < powerCount; ++power) {
        if (!isActive(power)) continue;
        addTo(turnsLeft(power), -1);
        ChangePower(power, 0);
    }
}

}  // namespace gloomdeck
