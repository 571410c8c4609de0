#include "rules/stats_column.h"

#include <algorithm>
#include <string>

#include "platform/draw.h"
#include "platform/palette.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "shell/places.h"
#include "shell/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int countLeft = statsGrid.x + 34;
constexpr int countRight = countLeft + 47;
constexpr int countText = statsGrid.x + 44;
constexpr int skillLeft = statsGrid.x + 3 * tile::size - 14;
constexpr int skillRight = 397;
constexpr int skillIcon = statsGrid.x + 3 * tile::size - 12;
constexpr int skillText = 366;
constexpr int textDrop = 12;

constexpr int powerTop = 280;
constexpr int powerPitch = 64;
constexpr int barDrop = 26;  // the bar lies over the icon's lower rows
constexpr int barBottomDrop = 30;
constexpr int longestBar = 31;

Colour boxColour(int change) {
    if (change == 0) return colour::slate;
    return change > 0 ? colour::yellow : colour::loss;
}

Colour textOn(Colour box) { return box == colour::yellow ? colour::black : colour::text; }

// The bar grows from the right, two pixels a turn.
void drawPowerBar(int x, int turns) {
    const int top = powerTop + barDrop;
    const int bottom = powerTop + barBottomDrop;
    const int right = x + tile::size - 1;
    const int length = turns > longestBar / 2 ? longestBar : 2 * turns;
    fillBox(x, top, right, bottom, colour::slate);
    fillBox(right - length, top, right, bottom, colour::black);
}

}  // namespace

void drawItemCount(int item, int n) {
    const int top = statsGrid.corner(0, item).y;
    const int net = itemType(item).turnChange;
    const Colour box = n == 0 ? colour::slate : boxColour(net >= 0 ? 1 : -1);
    fillBox(countLeft, top, countRight, top + tile::size - 1, box);
    drawText(countText, top + textDrop, std::to_string(count(item)) + " ", textOn(box));
}

void drawSkill(int skill, int n) {
    const int top = statsGrid.corner(0, skillType(skill).statsRow).y;
    const Colour box = boxColour(n);
    fillBox(skillLeft, top, skillRight, top + tile::size - 1, box);
    if (level(skill) <= 0) return;
    putTile(skillType(skill).tile, skillIcon, top, putTransparent);
    drawText(skillText, top + textDrop, std::to_string(level(skill)) + "%", textOn(box));
}

void drawPower(int power, bool withIcon) {
    const int x = boardGrid.x + powerPitch * power;
    const int turns = turnsLeft(power);
    if (turns < 1) {
        fillBox(x, powerTop, x + powerPitch - 1, powerTop + tile::size - 1, colour::panel);
        return;
    }
    if (withIcon) putTile(powerType(power).tile, x, powerTop, putTransparent);
    drawPowerBar(x, turns);
    fillBox(x + 34, powerTop + 12, x + 65, powerTop + 22, colour::panel);
    drawText(x + 34, powerTop + 12, std::to_string(turns));
}

void drawStatsCell(int row) {
    const Rect r = statsGrid.cell(0, row);
    fillBox(r.x1, r.y1, r.x2, r.y2, colour::face);
    putTile(itemType(row).tile, r.x1, r.y1, putTransparent);
}

}  // namespace gloomdeck
