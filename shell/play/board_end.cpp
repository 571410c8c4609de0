// The score above the board, the banner on it, and the Continue button.
#include "shell/play/board_end.h"

#include <string>

#include "prefs/score.h"
#include "rules/board.h"
#include "rules/show.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/messages.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

namespace {

constexpr int scoreTop = -13;
constexpr int scoreHeight = 12;
constexpr int bannerTop = 193;
constexpr int bannerHeight = 30;

const char* standingTag() {
    if (game.scoreStanding == none) return "";
    return game.scoreStanding == 0 ? " - Best!" : " - Above avg!";
}

const char* bannerText() {
    if (game.campaign == none) return "Congratulations!";
    return isLastCampaignStage() ? "Campaign Won!" : "Campaign...";
}

}  // namespace

void ShowScoreLine() {
    drawBoardLabel("Score: " + std::to_string(ComputeScore()) + standingTag(), scoreTop, scoreHeight);
}

void showScenarioEnd() {
    ShowScoreLine();
    drawBoardLabel(bannerText(), bannerTop, bannerHeight);
    if (game.campaign != none && !isLastCampaignStage()) showButton(widget(id::continueGame), "Continue ");
}

void hideContinue() { widget(id::continueGame).hidden = true; }

void forgetLastGame() {
    clearMessages();
    ui.targetMode = target::none;
    ui.messagePosted = false;
    hideContinue();
}

}  // namespace gloomdeck
