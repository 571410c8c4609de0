// One play through every screen, every state of it and every animation, on flat tiles.
#include "content/game_flow.h"
#include "prefs/saved_data.h"
#include "shell/play/play_view.h"
#include "shell/widgets/layout.h"
#include "tests/play/scenes.h"

namespace gloomdeck {

void holdAll(StagedPlay& play, const std::vector<int>& widgets) {
    for (const int widgetId : widgets) {
        play.then([=](InputQueue& queue) { pointAt(queue, widgetCentre(widgetId), {true}); });
        play.release(nothing);
    }
}

void scene(StagedPlay& play, const std::string& name, const std::function<void()>& prepare) {
    play.move(nothing);
    play.step(name).check([=] {
        resetCatalogue();
        clearMessages();
        makeEmptyBoard();
        for (int col = 0; col < columnCount; ++col) column(col).location = col;
        giveHero(20);
        game.skills = {};
        game.powers = {};
        game.scenario = 4;  // where training and trading are allowed
        game.campaignStage = 0;
        game.campaignWon = 0;
        game.turns = 1;
        ApplyDefaults();
        prefs.currentScreen = screen_id::play;
        prefs.scenarioOver = 0;
        ui.targetMode = target::none;
        widget(id::continueGame).hidden = true;
        prepare();
        openPlayScreen();
    });
}

TEST_F(SignatureTest, EveryPictureAndItsTimeAreAsKept) {
    StagedPlay play;
    playTitleAndSelection(play);
    playPieces(play);
    playEncounters(play);
    playSpells(play);
    playAutoplayer(play);
    playPreferences(play);
    playTraining(play);
    playHelp(play);
    playQuestions(play);
    playStories(play);
    expectSignature(play);
}

}  // namespace gloomdeck
