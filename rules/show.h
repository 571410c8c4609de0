// What the rules show and ask, named after what the player sees. The play screen answers in the game
// (shell/play/), show_silent.cpp where nobody looks; which of them is a matter of linking, as with the hosts.
// How a picture looks and how long it stands is the answer's affair. It may draw random numbers for it; the
// silent one draws none.
#pragma once
#include <string_view>

namespace gloomdeck {

/// Posts a line on the message bar; mark 1 makes it the action's own message, which the board turn does not
/// scroll away. A text of spaces scrolls the bar up by an empty line, an empty text only redraws it.
void ShowMessage(std::string_view text, int mark);

/// At the end of a turn: an empty line, unless the action's own message stands.
void scrollMessages();

// The board and the hero as they stand.
void drawBoard();
void drawColumn(int col);
void redrawCell(int col, int row);  ///< left as it is where an eye hides it
/// A change (n) is highlighted, the item's by its net change of the turn.
void drawItemCount(int item, int n);
void drawSkill(int skill, int n);
void drawPower(int power, bool withIcon);
void DrawDayDisplay();

/// What is drawn between the two appears at once; they nest.
void holdScreen();
void releaseScreen();

// What happens in a cell.
enum class Flash { sun, shield, shieldHit, spreading };
void flashCell(Flash flash, int col, int row);
void showArrival(int col, int row);  ///< what was left in it is uncovered
void showVanishing(int col, int row);
void showScorch(int col, int row);
void showShrinking(int code, int col, int row);  ///< what a hand has taken
void FlashCell(int col, int row);                ///< the autoplayer's choice, unless an eye hides it

// What happens on the whole board.
void showSunlight();
void startBolt(int col);
void showBoltStep(int col, int row);
void endBolt();
void showBlast(int col, int row);
void showBlastHit(int col, int row);

/// A story page, until the player has read it.
void showStory(std::string_view text);

void showScenarioEnd();

/// Another board is begun: nothing goes on from the one before.
void hideContinue();

/// Another game is begun: messages, a targeting mode and the Continue button of the last one go.
void forgetLastGame();

/// True when the player interrupts the autoplayer. Reads a key and the pointer; Space, Escape, Enter, a held
/// left button and a close request interrupt, any other key is lost.
bool CancelRequested();

}  // namespace gloomdeck
