// Switches, boards and runs for the tests of the autoplayer.
#pragma once

#include <algorithm>
#include <initializer_list>

#include "autoplayer/assess.h"
#include "autoplayer/autoplayer.h"
#include "platform/input.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

/// The switches, to be added up.
enum Switches : int { goodOn = 1, easyOn = 2, hardOn = 4, griefOn = 8, spellsOn = 16, allOn = 31 };

class AutoplayerTest : public GameTest {
  protected:
    /// Only these are on.
    static void allow(int switches) { prefs.switches = static_cast<std::uint32_t>(switches); }

    /// Takes every column but these out of the game.
    static void onlyColumns(std::initializer_list<int> columns) {
        for (int col = 0; col < columnCount; ++col)
            column(col).finished = std::ranges::find(columns, col) == columns.end() ? 1 : 0;
    }

    static void fillColumn(int col, int code) { std::fill_n(column(col).cells.begin(), rowCount, code); }

    static Assessment assessNow() { return assessBoard(eyeRowsNow()); }

    /// Runs with these keys waiting.
    static int movesPlayed(std::initializer_list<std::string_view> keys = {}) {
        seedRolls(1);
        for (const auto key : keys) keyTyped(inputQueue(), key);
        const int before = game.turns;
        RunAutoplayer();
        return game.turns - before;
    }
};

}  // namespace gloomdeck
