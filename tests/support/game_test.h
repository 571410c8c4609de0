// The fixture of tests with screens: input, widgets and the frame start afresh too.
#pragma once

#include <string>

#include "platform/host_script.h"
#include "shell/widgets/messages.h"
#include "shell/widgets/ui_state.h"
#include "tests/support/rules_test.h"

namespace gloomdeck {

/// Brings the whole program back to the moment before it starts.
void resetProgram();

/// Every tile is a square of its own colour with see-through corners (those of terrain are opaque).
Colour flatColour(int tileNumber);

/// A new folder with an empty Data folder and the flat tiles as picture files, removed when the fixture ends.
std::string makeProgramFolder(bool withPictures = true);
void removeProgramFolders();

/// With a frame, flat tiles and the play screen's widgets, but no window. A screen left locked fails the
/// test.
class GameTest : public RulesTest {
  protected:
    void SetUp() override;
    void TearDown() override;
    static const std::string& newestMessage() { return messageBar.lines.front(); }
};

Colour pixelAt(int x, int y);  ///< of the frame

/// True when the pixels of the text's glyphs, and no others of its cells, have the colour of the ink.
bool textStandsAt(int x, int y, std::string_view text, Colour ink);

}  // namespace gloomdeck
