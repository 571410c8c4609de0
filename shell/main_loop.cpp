// One pass: a key, the mouse, a command, and the turn that an action used.
#include "shell/main_loop.h"

#include <string>

#include "autoplayer/autoplayer.h"
#include "content/campaign_flow.h"
#include "content/game_flow.h"
#include "content/screens/game_selection.h"
#include "help/help_screen.h"
#include "platform/bitmap.h"
#include "platform/clock.h"
#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "platform/palette.h"
#include "platform/random.h"
#include "platform/system.h"
#include "prefs/prefs.h"
#include "prefs/saved_data.h"
#include "prefs/screen/prefs_screen.h"
#include "rules/board.h"
#include "rules/board_turn.h"
#include "rules/training/training_screen.h"
#include "shell/lifecycle.h"
#include "shell/play/target_mode.h"
#include "shell/play_screen.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/pacing.h"
#include "shell/widgets/press.h"
#include "shell/widgets/tile_set.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

namespace {

constexpr int passPause = 10;  // milliseconds

void showTitle() {
    loadBitmap(pictureFolder() + "dtitle.bmp", screen());
    waitForAck("");
}

void replayGame() {
    if (confirm("Replay current game?", isGameOver() ? 1 : 0) == 0) return;
    startNewGame();
    enterPlayScreen();
}

[[noreturn]] void leaveProgram() {
    shutDown();
    endProgram(0);
}

void chooseGame() {
    if (!runGameSelection()) leaveProgram();
    enterPlayScreen();
}

void openSelection() {
    if (confirm("Really quit game and return to main menu?", isGameOver() ? 1 : 0) == 0) return;
    chooseGame();
}

void openScreen(void (*screen)()) {
    screen();
    enterPlayScreen();
}

void continueCampaign() {
    if (game.campaign != none && !isLastCampaignStage()) nextCampaignStage();
    enterPlayScreen();
}

bool continueIsOffered() { return !widget(id::continueGame).hidden && prefs.scenarioOver; }

bool asksToLeave(const std::string& key) { return key == "Q" || key == "X" || key == "E"; }

bool endsLoop(const std::string& key) { return asksToLeave(key) || key == keycode::close; }

bool leavingIsConfirmed() { return confirm("Really exit game?", 0) != 0; }

// These two work only while the game is not over.
void handlePlayKey(const std::string& key) {
    if (isGameOver()) return;
    if (key == "T") openScreen(TrainingScreen);
    if (key == keycode::escape) cancelTargetMode();
}

void handleCommandKey(std::string& key) {
    if (key == keycode::space || key == keycode::enter) {
        if (continueIsOffered()) continueCampaign();
    } else if (key == "+") {
        speedUp(1);
    } else if (key == "-") {
        speedDown(1);
    } else if (key == "?" || key == "H") {
        openScreen(runHelpScreen);
    } else if (key == "N") {
        openSelection();
    } else if (key == "R") {
        replayGame();
    } else if (key == "P") {
        openScreen(RunPreferencesScreen);
    } else if (asksToLeave(key) && !leavingIsConfirmed()) {
        key = "]";
    }
}

void handleButton(int button, std::string& key) {
    switch (button) {
        case id::newGame: return openSelection();
        case id::exit:
            if (leavingIsConfirmed()) key = "Q";
            return;
        case id::replay: return replayGame();
        case id::help: return openScreen(runHelpScreen);
        case id::prefs: return openScreen(RunPreferencesScreen);
        case id::continueGame: return continueCampaign();
        default: return;
    }
}

void finishTurn() {
    BoardTurn();
    RunAutoplayer();
}

// One pass; the answer is the key on which the loop may end.
std::string runPass() {
    markSafePoint();
    std::string key = readKey();
    ui.turnTaken = ui.messagePosted = false;
    ui.turnTaken = handleMouse() != 0;
    if (!ui.turnTaken) {
        handlePlayKey(key);
        handleCommandKey(key);
    } else if (clickedButton != -1) {
        ui.turnTaken = false;
        handleButton(clickedButton, key);
    }
    clickedButton = -1;
    if (ui.turnTaken) finishTurn();
    return key;
}

}  // namespace

void startUp() {
    layOutWidgets();
    ui = {};
    setWindowTitle("Gloomdeck 1.2");
    randomize(timer());
    openWindow(frameWidth, frameHeight);
    onWindowLost(saveAfterLoss);
    setDefaultColours(colour::text, colour::panel);
    showTitle();
    loadTiles();
    pressedWidget = notPressed;
    if (!LoadSavedData()) ApplyDefaults();
    if (prefs.currentScreen == screen_id::selection)
        chooseGame();
    else
        enterPlayScreen();
}

void runMainLoop() {
    while (!endsLoop(runPass())) pausePolling(passPause);
}

void runGloomdeck() {
    startUp();
    runMainLoop();
    leaveProgram();
}

}  // namespace gloomdeck
