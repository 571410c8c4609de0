// What monsters and caves leave behind.
#include "rules/clear_cell.h"

#include <array>

#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/dice.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

constexpr std::array caveContents{enc::Skeleton, enc::Skeleton,    enc::Ghost,        enc::Ghost,
                                  enc::Chest,    enc::Backpack,    enc::Scroll,       enc::Meat,
                                  enc::Chest,    enc::Empty,       enc::SkeletonKing, enc::OozingFilth,
                                  enc::Demon,    enc::LockedChest, enc::Gold};

// The answer is whether the cell counts as empty; a cave that held nothing does not.
bool leaveRemains(int col, int row) {
    std::int32_t& code = cell(col, row);
    if (code == enc::TheEnd) return false;
    if (code == enc::Cave) {
        const int content = Roll(static_cast<int>(caveContents.size()));
        code = caveContents[static_cast<std::size_t>(content - 1)];
        return false;
    }
    const int monsterRow = encounterType(code).monster;
    const int becomes = monsterRow == none ? none : monsterType(monsterRow).becomes;
    code = becomes == none ? enc::Empty : becomes;
    return becomes == none;
}

}  // namespace

bool ClearCell(int col, int row) {
    const bool isEmpty = leaveRemains(col, row);
    if (!isEmpty && cell(col, row) != enc::TheEnd && !IsHiddenByEye(col, row)) showArrival(col, row);
    return isEmpty;
}

}  // namespace gloomdeck
