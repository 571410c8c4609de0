// What the autoplayer thinks of the board: pure, from the records to values. Nothing here draws, rolls or
// keeps anything.
#pragma once

#include <array>
#include <cstdint>

#include "rules/game_state.h"

namespace gloomdeck {

struct CellAssessment {
    std::int32_t value = 0;
    std::int32_t category = 0;  // namespace category
    std::int32_t allowed = 0;   // 1: the cell may be chosen
};

/// FirstEyeRow of each column, taken once a pass.
using EyeRows = std::array<int, columnCount>;

/// One pass's view of the board.
struct Assessment {
    std::array<std::array<CellAssessment, rowCount>, columnCount> cells;

    CellAssessment& at(int col, int row) {
        return cells[static_cast<std::size_t>(col)][static_cast<std::size_t>(row)];
    }
    const CellAssessment& at(int col, int row) const {
        return cells[static_cast<std::size_t>(col)][static_cast<std::size_t>(row)];
    }
};

EyeRows eyeRowsNow();

/// Assesses every cell.
Assessment assessBoard(const EyeRows& eyeRows);

/// True when the switches allow the category.
bool CategoryEnabled(int categoryNumber);

/// The look-ahead over a column: the bottom tile weighs seven times, what is further up fades.
int ColumnScore(const Assessment& assessment, int col);

/// The column to meet, the leftmost of equal scores, or -1.
int chooseColumn(const Assessment& assessment);

/// What deflection and toughness leave of n points; never below 0.
int ReduceDamage(std::int64_t n);

/// The damage that the autoplayer expects of a monster row.
int ExpectedDamage(int monsterRow);

/// Whether a Ghost can flee: 1 all neighbours are blocked, 3 with those that an eye hides, else 0.
int TrapState(int col, int row);

/// True when no cell of the board can take a Ghost or a Demon.
bool NoGhostTarget();

}  // namespace gloomdeck
