// Switches and boards for the tests of the autoplayer.
#pragma once
#include <algorithm>
#include <initializer_list>

#include "autoplayer/assess.h"
#include "tests/support/rules_test.h"

namespace gloomdeck {

/// The switches, to be added up.
enum Switches : int { goodOn = 1, easyOn = 2, hardOn = 4, griefOn = 8, spellsOn = 16, allOn = 31 };

/// Only these are on.
inline void allow(int switches) { prefs.switches = static_cast<std::uint32_t>(switches); }

/// Takes every column but these out of the game.
inline void onlyColumns(std::initializer_list<int> columns) {
    for (int col = 0; col < columnCount; ++col)
        column(col).finished = std::ranges::find(columns, col) == columns.end() ? 1 : 0;
}

inline void fillColumn(int col, int code) { std::fill_n(column(col).cells.begin(), rowCount, code); }

inline Assessment assessNow() { return assessBoard(eyeRowsNow()); }

}  // namespace gloomdeck
