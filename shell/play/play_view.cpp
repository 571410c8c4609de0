// Title, day, board, stats area, messages, banner and buttons, from the top.
#include "shell/play/play_view.h"

#include <string>

#include "content/campaigns.h"
#include "content/scenarios.h"
#include "platform/draw.h"
#include "platform/palette.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/hero.h"
#include "rules/show.h"
#include "rules/tiles.h"
#include "shell/play/stats_column.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/places.h"
#include "shell/widgets/screen_lock.h"

namespace gloomdeck {

namespace {

std::string titleLine() {
    std::string scenario(scenarioRow(game.scenario).name);
    if (game.campaign == none) return scenario;
    const Campaign& campaign = campaignRow(game.campaign);
    return std::string(campaign.name) + " (" + std::to_string(std::int64_t{game.campaignStage} + 1) + "/" +
           std::to_string(campaign.scenarioCount) + ") - " + scenario;
}

int goldTileFor(const Scenario& scenario) {
    if (scenario.trainingAllowed) return scenario.tradingAllowed ? tile::goldBoth : tile::goldTraining;
    return scenario.tradingAllowed ? tile::goldTrading : tile::gold;
}

void drawStatsArea() {
    const Rect& area = place::statsArea;
    const Rect icons = statsGrid.area();
    fillBox(area.x1, area.y1, area.x2, area.y2, colour::slate);
    drawBox(area.x1, area.y1, area.x2, area.y2, colour::white);
    for (int item = 0; item < itemCount; ++item) {
        drawStatsCell(item);
        AddItem(item, 0);
    }
    drawBox(area.x1, area.y1, icons.x2 + 1, area.y2, colour::text);
    drawLine(icons.x2 + 2, area.y1, icons.x2 + 2, area.y2, colour::black);
    for (int skill = 0; skill < skillCount; ++skill) ChangeSkill(skill, 0);
    for (int power = 0; power < powerCount; ++power) ChangePower(power, 0, 1, 1);
}

void drawMessages() {
    ShowMessage("", 0);
    if (game.turns == 0) ShowMessage("Click on the bottom row of the map grid above.", 1);
}

}  // namespace

void openPlayScreen() {
    const HeldScreen held;
    clearScreen();
    drawText(place::titleLine.x, place::titleLine.y, titleLine(), colour::white);
    DrawDayDisplay();
    drawBoard();
    itemType(gold).tile = goldTileFor(scenarioRow(game.scenario));
    drawStatsArea();
    drawMessages();
    if (AllColumnsFinished()) showScenarioEnd();
    for (const int button : {id::newGame, id::replay, id::prefs, id::help, id::exit})
        drawButton(widget(button));
}

}  // namespace gloomdeck
