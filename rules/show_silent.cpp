// The answers where nobody looks: nothing is shown, no time passes, and the autoplayer is interrupted when a
// game has gone on for too long.
#include "rules/show_silent.h"

#include "rules/game_state.h"
#include "rules/show.h"

namespace gloomdeck {

int silentTurnLimit = 3000;

void ShowMessage(std::string_view /*text*/, int /*mark*/) {}
void scrollMessages() {}
void drawBoard() {}
void drawColumn(int /*col*/) {}
void redrawCell(int /*col*/, int /*row*/) {}
void drawItemCount(int /*item*/, int /*n*/) {}
void drawSkill(int /*skill*/, int /*n*/) {}
void drawPower(int /*power*/, bool /*withIcon*/) {}
void DrawDayDisplay() {}
void holdScreen() {}
void releaseScreen() {}
void flashCell(Flash /*flash*/, int /*col*/, int /*row*/) {}
void showArrival(int /*col*/, int /*row*/) {}
void showVanishing(int /*col*/, int /*row*/) {}
void showScorch(int /*col*/, int /*row*/) {}
void showShrinking(int /*code*/, int /*col*/, int /*row*/) {}
void FlashCell(int /*col*/, int /*row*/) {}
void showSunlight() {}
void startBolt(int /*col*/) {}
void showBoltStep(int /*col*/, int /*row*/) {}
void endBolt() {}
void showBlast(int /*col*/, int /*row*/) {}
void showBlastHit(int /*col*/, int /*row*/) {}
void showStory(std::string_view /*text*/) {}
void showScenarioEnd() {}
void hideContinue() {}
void forgetLastGame() {}
bool CancelRequested() { return game.turns >= silentTurnLimit; }

}  // namespace gloomdeck
