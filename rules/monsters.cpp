// Where those that move may go, and what is lost there.
#include "rules/monsters.h"

#include <optional>
#include <utility>

#include "platform/geometry.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/dice.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

constexpr int randomPicks = 6;
constexpr int boardCells = columnCount * rowCount;

// Board places: x is the column, y the row.
using Cell = Point;

bool filthMayGo(Cell to) {
    return InBounds(to.x, to.y) && !IsPastEnd(to.x, to.y) && encounterType(cell(to.x, to.y)).filthMaySpread;
}

void moveInto(Cell from, Cell to, enc::Code code) {
    cell(from.x, from.y) = enc::Empty;
    cell(to.x, to.y) = code;
    if (to.x != from.x) drawColumn(to.x);
}

Cell nextCell(Cell c) {
    if (c.x + 1 < columnCount) return {c.x + 1, c.y};
    return {0, (c.y + 1) % rowCount};
}

Cell randomCell() {
    const int col = Roll(columnCount) - 1;
    const int row = Roll(rowCount) - 1;
    return {col, row};
}

std::optional<Cell> demonTarget() {
    Cell c;
    for (int pick = 0; pick < randomPicks; ++pick) {
        c = randomCell();
        if (ghostMayGo(c.x, c.y)) return c;
    }
    for (int looked = 0; looked < boardCells; ++looked, c = nextCell(c))
        if (ghostMayGo(c.x, c.y)) return c;
    return {};
}

void teleport(Cell from, Cell to) {
    if (!IsHiddenByEye(from.x, from.y)) showVanishing(from.x, from.y);
    cell(from.x, from.y) = enc::Empty;
    redrawCell(from.x, from.y);
    if (!IsHiddenByEye(to.x, to.y)) showVanishing(to.x, to.y);
    cell(to.x, to.y) = enc::Demon;
    redrawCell(to.x, to.y);
}

}  // namespace

bool ghostIsLetIn(int col, int row) {
    return InBounds(col, row) && encounterType(cell(col, row)).ghostMayEnter;
}

bool ghostMayGo(int col, int row) { return ghostIsLetIn(col, row) && !IsPastEnd(col, row); }

bool ghostFlees(int col, int row) {
    const Cell here{col, row};
    Cell first{col - 1, row};
    Cell second{col + 1, row};
    if (Roll(100) <= 50) std::swap(first, second);
    for (const Cell to : {Cell{col, row - 1}, first, second, Cell{col, row + 1}}) {
        if (!ghostMayGo(to.x, to.y)) continue;
        if (isActive(stasis)) return false;
        moveInto(here, to, enc::Ghost);
        return true;
    }
    return false;
}

bool filthSpreads(int col, int row) {
    if (isActive(stasis)) return false;
    bool spread = false;
    for (const Cell to : {Cell{col, row - 1}, Cell{col - 1, row}, Cell{col + 1, row}, Cell{col, row + 1}}) {
        if (!filthMayGo(to)) continue;
        moveInto({col, row}, to, enc::OozingFilth);
        spread = true;
    }
    if (!spread) return false;
    redrawCell(col, row);
    flashCell(Flash::spreading, col, row);
    return true;
}

bool demonTeleports(int col, int row) {
    if (isActive(stasis)) return false;
    const std::optional<Cell> to = demonTarget();
    if (to) teleport({col, row}, *to);
    return to.has_value();
}

}  // namespace gloomdeck
