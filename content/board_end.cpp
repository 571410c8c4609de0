#include "content/board_end.h"

#include "prefs/prefs.h"
#include "prefs/score.h"
#include "rules/board.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/panels.h"

namespace gloomdeck {

namespace {

constexpr int bannerTop = 193;
constexpr int bannerHeight = 30;

const char* bannerText() {
    if (game.campaign == none) return "Congratulations!";
    return isLastCampaignStage() ? "Campaign Won!" : "Campaign...";
}

}  // namespace

void showScenarioEnd() {
    ShowScoreLine();
    drawBoardLabel(bannerText(), bannerTop, bannerHeight);
    if (game.campaign != none && !isLastCampaignStage()) showButton(widget(id::continueGame), "Continue ");
}

bool isGameOver() { return game.campaign == none ? prefs.scenarioOver != 0 : game.campaignWon != 0; }

}  // namespace gloomdeck
