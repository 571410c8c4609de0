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
enum Switches : int {
    goodStuffOn = 1,
    fairlyEasyOn = 2,
    obstaclesOn = 4,
    griefOn = 8,
    spellsSkillsOn = 16,
    everySwitchOn = 31
};

class AutoplayerTest : public GameTest {
  protected:
    /// Only these are on.
    static void allow(int switches) {
        for (int bit = 0; bit < 5; ++bit)
            if (switchIsOn(bit) != ((switches >> bit) % 2 != 0)) flipSwitch(bit);
    }

    /// Takes every column but these out of the game.
    static void onlyColumns(std::initializer_list<int> columns) {
        for (int col = 0; col < columnCount; ++col)
            column(col).finished = std::ranges::find(columns, col) == columns.end() ? 1 : 0;
    }

    static void fillColumn(int col, enc::Code code) {
        for (int row = 0; row < rowCount; ++row) cell(col, row) = code;
    }

    static Assessment assessNow() { return assessBoard(eyeRowsNow()); }

    /// Runs with these keys waiting.
    static int movesPlayed(std::initializer_list<std::string_view> keys = {}) {
        for (const auto key : keys) keyTyped(inputQueue(), key);
        const int before = game.turns;
        RunAutoplayer();
        return game.turns - before;
    }

    /// One move, stopped with a Space that must be read.
    static bool playsOneMove() { return movesPlayed({keycode::space}) == 1 && !keyWaiting(); }
};

}  // namespace gloomdeck
