// The fixture of every test: all process-wide records, tables, rolls, input and the frame start afresh.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/host_script.h"
#include "prefs/prefs.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"
#include "shell/messages.h"
#include "shell/ui_state.h"
#include "tests/support/rolls.h"

namespace gloomdeck {

/// Brings the whole program back to the moment before it starts.
void resetProgram();

/// A board of Empty cells in Dungeon columns (deck 60), as far from their end as can be, over flat tiles.
void makeEmptyBoard();

/// Every tile becomes a square of its own colour with see-through corners (those of terrain are opaque).
void makeFlatTiles();

/// Writes the four picture files with the same flat tiles into folder/gfx.
void writeFlatPictures(const std::string& folder);

/// A new folder with an empty Data folder and flat pictures, removed when the fixture ends.
std::string makeProgramFolder();
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

/// The colour of the frame's pixel.
Colour pixelAt(int x, int y);

/// The colour that the flat tile of that number has in its middle.
Colour flatColour(int tileNumber);

/// True when the pixels of the text's glyphs, and no others of its cells, have the colour of the ink.
bool textStandsAt(int x, int y, std::string_view text, Colour ink);

}  // namespace gloomdeck
