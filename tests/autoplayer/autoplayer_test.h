// Switches, boards and runs for the tests of the autoplayer.
#pragma once

#include <initializer_list>

#include "autoplayer/assess.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

/// The switches by their bit.
enum SwitchBit : int { goodStuffBit, fairlyEasyBit, obstaclesBit, griefBit, spellsSkillsBit };
inline constexpr int switchCombinations = 32;

/// Sets the five switches from a word of bits.
void setSwitches(int word);

class AutoplayerTest : public GameTest {
  protected:
    /// Only these are on.
    static void allow(std::initializer_list<int> bits);

    /// Takes every column but these out of the game.
    static void onlyColumns(std::initializer_list<int> columns);

    static void fillColumn(int col, enc::Code code);
    static Assessment assessNow() { return assessBoard(eyeRowsNow()); }

    /// Lets the autoplayer make that many moves and stops it with a Space.
    static void playMoves(int moves);
};

}  // namespace gloomdeck
