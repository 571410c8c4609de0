#include "tests/autoplayer/autoplayer_test.h"

#include <algorithm>

#include "autoplayer/autoplayer.h"
#include "platform/input.h"

namespace gloomdeck {

void setSwitches(int word) {
    for (int bit = goodStuffBit; bit <= spellsSkillsBit; ++bit)
        if (switchIsOn(bit) != ((word >> bit) % 2 != 0)) flipSwitch(bit);
}

void AutoplayerTest::allow(std::initializer_list<int> bits) {
    int word = 0;
    for (const int bit : bits) word |= 1 << bit;
    setSwitches(word);
}

void AutoplayerTest::onlyColumns(std::initializer_list<int> columns) {
    for (int col = 0; col < columnCount; ++col)
        column(col).finished = std::find(columns.begin(), columns.end(), col) == columns.end() ? 1 : 0;
}

void AutoplayerTest::fillColumn(int col, enc::Code code) {
    for (int row = 0; row < rowCount; ++row) cell(col, row) = code;
}

void AutoplayerTest::playMoves(int moves) {
    const int last = game.turns + moves - 1;
    script::feedAtPoll([last, done = false](InputQueue& queue) mutable {
        if (done || game.turns < last) return false;
        keyTyped(queue, keycode::space);
        done = true;
        return true;
    });
    RunAutoplayer();
    script::feedAtPoll(nullptr);
}

}  // namespace gloomdeck
