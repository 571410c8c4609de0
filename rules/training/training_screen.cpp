#include "rules/training/training_screen.h"

#include "platform/frame.h"
#include "prefs/prefs.h"
#include "rules/catalogue.h"
#include "rules/training.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/screen_lock.h"
#include "shell/widgets/screen_poll.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

namespace {

constexpr int barHeight = 392;

void openScreen() {
    setWindowTitle("Train or trade");
    const HeldScreen held;
    prefs.currentScreen = screen_id::training;
    Button& done = widget(id::done);
    placeButton(done, 185, 368);
    done.caption = "Done";
    drawHeaderBar(barHeight);
    drawButton(done);
    DrawTrainingGold();
    done.pressCol = -1;
    clickedButton = -1;
    restartPress();
}

void drawRows() {
    const HeldScreen held;
    for (int skill = 0; skill < skillCount; ++skill) DrawTrainingRow(skill);
    for (int offer = 0; offer < tradeOfferCount; ++offer) DrawTradeRow(offer);
    if (!TrainingAvailable() && !TradingAvailable()) ShowTrainingMessage("You can't trade or train here!");
}

void buy(int button) {
    const int row = button - id::training;
    if (row >= 0 && row < skillCount) Train(row);
    if (row >= skillCount && row < trainingRows) Trade(row - skillCount);
}

}  // namespace

void TrainingScreen() {
    openScreen();
    drawRows();
    while (true) {
        const ScreenEvent event = pollScreen();
        if (event.clicked == id::done || leavesScreen(event.key)) return;
        if (event.click) buy(event.clicked);
    }
}

}  // namespace gloomdeck
