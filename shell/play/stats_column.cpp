// Counts and skills in their colours, powers with the bar of their turns.
#include "shell/play/stats_column.h"

#include <algorithm>
#include <string>

#include "platform/draw.h"
#include "platform/palette.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "rules/show.h"
#include "shell/widgets/places.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int barDrop = 26;  // the bar lies over the icon's lower rows
constexpr int barBottomDrop = 30;
constexpr int longestBar = 31;

void fill(const Rect& r, Colour colour) { fillBox(r.x1, r.y1, r.x2, r.y2, colour); }

Colour boxColour(int change) {
    if (change == 0) return colour::slate;
    return change > 0 ? colour::yellow : colour::loss;
}

Colour textOn(Colour box) { return box == colour::yellow ? colour::black : colour::text; }

// The bar grows from the right, two pixels a turn.
void drawPowerBar(const Rect& box, int turns) {
    const int top = box.y1 + barDrop;
    const int bottom = box.y1 + barBottomDrop;
    const int right = box.x1 + tile::size - 1;
    const int length = turns > longestBar / 2 ? longestBar : 2 * turns;
    fillBox(box.x1, top, right, bottom, colour::slate);
    fillBox(right - length, top, right, bottom, colour::black);
}

}  // namespace

void drawItemCount(int item, int n) {
    const Rect box = place::countBox(item);
    const int net = itemType(item).turnChange;
    const Colour behind = n == 0 ? colour::slate : boxColour(net >= 0 ? 1 : -1);
    fill(box, behind);
    drawText(place::countTextLeft, box.y1 + place::statsTextDrop, std::to_string(count(item)) + " ",
             textOn(behind));
}

void drawSkill(int skill, int n) {
    const Rect box = place::skillBox(skillType(skill).statsRow);
    const Colour behind = boxColour(n);
    fill(box, behind);
    if (level(skill) <= 0) return;
    putTile(skillType(skill).tile, place::skillIconLeft, box.y1, putTransparent);
    drawText(place::skillTextLeft, box.y1 + place::statsTextDrop, std::to_string(level(skill)) + "%",
             textOn(behind));
}

void drawPower(int power, bool withIcon) {
    const Rect box = place::powerBox(power);
    const Rect number = place::powerTurns(power);
    const int turns = turnsLeft(power);
    if (turns < 1) return fill(box, colour::panel);
    if (withIcon) putTile(powerType(power).tile, box.x1, box.y1, putTransparent);
    drawPowerBar(box, turns);
    fill(number, colour::panel);
    drawText(number.x1, number.y1, std::to_string(turns));
}

void drawStatsCell(int row) {
    const Rect r = statsGrid.cell(0, row);
    fill(r, colour::face);
    putTile(itemType(row).tile, r.x1, r.y1, putTransparent);
}

}  // namespace gloomdeck
