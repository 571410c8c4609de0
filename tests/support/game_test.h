// The fixture of every test: all process-wide records, tables, rolls, input and the frame start afresh.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/host_script.h"
#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "shell/widgets/messages.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

/// One roll to come: a die of so many sides shows a value.
struct FedRoll {
    int sides;
    int value;
};

/// Appends rolls; from now on running out of them fails the test (each further roll shows 1).
void rolls(const std::vector<FedRoll>& list);
int leftoverRolls();
void seedRolls(std::uint64_t seed);  ///< from a seeded stream instead

/// Brings the whole program back to the moment before it starts.
void resetProgram();

void fillBoard(int code);

/// A board of Empty cells in Dungeon columns (deck 60), as far from their end as can be.
void makeEmptyBoard();

/// Every tile is a square of its own colour with see-through corners (those of terrain are opaque).
Colour flatColour(int tileNumber);

/// A new folder with an empty Data folder and the flat tiles as picture files, removed when the fixture ends.
std::string makeProgramFolder(bool withPictures = true);
void removeProgramFolders();

/// Records only: no window, no pictures beyond flat tiles, the speed "Mega fast", an empty board. Fed rolls
/// that are left over, draws without a fed roll and a screen left locked fail the test.
class GameTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    static std::int32_t& board(int col, int row) { return cell(col, row); }
    static const std::string& newestMessage() { return messageBar.lines.front(); }
};

Colour pixelAt(int x, int y);  ///< of the frame

/// True when the pixels of the text's glyphs, and no others of its cells, have the colour of the ink.
bool textStandsAt(int x, int y, std::string_view text, Colour ink);

}  // namespace gloomdeck
