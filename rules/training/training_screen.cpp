// The screen's widgets and its rows.
#include "rules/training/training_screen.h"

#include <array>

#include "prefs/prefs.h"
#include "rules/catalogue.h"
#include "rules/training.h"
#include "rules/training/training_rows.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/screen.h"

namespace gloomdeck {

namespace {

constexpr int barHeight = 392;
constexpr Point donePlace{185, 368};

constexpr std::array<WidgetRow, 10> widgets{{{id::done},
                                             {id::training},
                                             {id::training + 1},
                                             {id::training + 2},
                                             {id::training + 3},
                                             {id::training + 4},
                                             {id::training + 5},
                                             {id::training + 6},
                                             {id::training + 7},
                                             {id::training + 8}}};
constexpr Screen trainingScreen{screen_id::training, "Train or trade",
                                [] { return std::span<const WidgetRow>(widgets); }};

void draw() {
    Button& done = widget(id::done);
    placeButton(done, donePlace.x, donePlace.y);
    done.caption = "Done";
    done.pressCol = -1;
    drawHeaderBar(barHeight);
    drawButton(done);
    DrawTrainingGold();
    for (int skill = 0; skill < skillCount; ++skill) DrawTrainingRow(skill);
    for (int offer = 0; offer < tradeOfferCount; ++offer) DrawTradeRow(offer);
    if (!TrainingAvailable() && !TradingAvailable()) ShowTrainingMessage("You can't trade or train here!");
}

void buy(int button) {
    const int row = button - id::training;
    if (row >= 0 && row < skillCount) Train(row);
    if (row >= skillCount && row < trainingRows) Trade(row - skillCount);
}

bool handle(const ScreenEvent& event) {
    if (leavesScreen(event)) return false;
    if (event.click) buy(event.clicked);
    return true;
}

}  // namespace

void TrainingScreen() { runScreen({.screen = trainingScreen, .draw = draw, .handle = handle}); }

}  // namespace gloomdeck
