// The scenes of all screens but the play screen.
#include "content/campaigns.h"
#include "help/help_pages.h"
#include "help/help_texts.h"
#include "rules/tiles.h"
#include "shell/widgets/layout.h"
#include "tests/play/scenes.h"

namespace gloomdeck {

void playTitleAndSelection(StagedPlay& play) {
    play.step("selection").passTitle();
    for (int row = 0; row < 3; ++row) play.key(keycode::down);
    play.step("selection, a campaign pressed").press({330, 57}).release({330, 37});
    play.step("selection, a campaign clicked").click({330, 47});
    play.step("selection, a tab clicked").click({125, 16});
    for (int row = 0; row < 7; ++row) play.key(keycode::down);
    play.step("selection, all held");
    holdAll(play, {id::list, id::tabs, id::done, id::selectionExit});
    play.step("selection, the cursor").wait(0.3).wait(0.3).wait(0.3);
    play.step("selection, a name").type("\b\b\b\b\b\b\b\b\b\bA hero of renown of");
    play.step("selection, a name cut")
        .type("\b\b\b!")
        .key(keycode::up)
        .key(keycode::left)
        .key(keycode::right);
    play.step("selection, started").click({330, 87}).button(id::done);
}

void playPreferences(StagedPlay& play) {
    scene(play, "preferences", [] {});
    play.key("P");
    for (int row = 0; row < toggleRows; ++row) play.button(id::toggle + row);
    for (int i = 0; i < 5; ++i) play.button(id::speedUp);
    for (int i = 0; i < 7; ++i) play.key("-");
    for (int row = 0; row < toggleRows; ++row) play.button(id::toggle + row);
    play.step("preferences, all held");
    holdAll(play, {id::speedUp, id::speedDown, id::done, 30, 31, 32, 33, 34, 35, 36});
    play.button(id::done);
}

void playTraining(StagedPlay& play) {
    scene(play, "training to the limit", [] {
        game.skills = {90, 91, 85, 0, 94, 20};
        count(gold) = 500;
        count(health) = -3;
    });
    play.key("T");
    for (int row = 0; row < trainingRows; ++row) play.button(id::training + row).button(id::training + row);
    play.step("training, all held");
    holdAll(play, {id::done, 21, 22, 23, 24, 25, 26, 27, 28, 29});
    play.button(id::done);
    scene(play, "training without gold", [] { count(gold) = 9; });
    play.click(statsCell(gold));
    for (int row = 0; row < trainingRows; ++row) play.button(id::training + row);
    play.key("q");
    for (const int goldTile : {tile::goldTraining, tile::goldTrading, tile::gold}) {
        scene(play, "training, gold tile " + std::to_string(goldTile), [] {});
        play.check([=] { itemType(gold).tile = goldTile; }).key("T").key("q");
    }
}

void playHelp(StagedPlay& play) {
    scene(play, "help", [] {});
    play.key("H").key(keycode::left);
    for (int page = 0; page < helpPageCount; ++page) {
        play.step("help page " + std::string(helpPageLabels[static_cast<std::size_t>(page)]));
        play.click({40, 28 + 16 * page}).move(nothing);
        for (int entry = 0; entry <= helpEntryCount(page); ++entry) play.key(keycode::right);
        play.button(id::next).button(id::prev);
        play.step("help page " + std::to_string(page) + ", all held");
        holdAll(play, {id::helpMenu, id::next, id::prev, id::done});
    }
    play.step("help, pages by keys").key(keycode::up).key(keycode::down).key(keycode::down).key(keycode::up);
    play.step("help, entries kept until it is left");
    for (int page = 0; page < 3; ++page) play.key(keycode::down);
    play.button(id::done).key("H").button(id::done);
}

void playQuestions(StagedPlay& play) {
    constexpr Point yes{167, 262};
    constexpr Point no{240, 262};
    for (const char* key : {"R", "N", "Q"}) {
        scene(play, std::string("question ") + key, [] {});
        play.key(key).key("\t").key(keycode::left).press(yes).release(no).press(no).release(yes);
        play.press({5, 5}).release(yes).click(no);
    }
    scene(play, "replay", [] { prefs.campaignChoice = none; });  // without a story
    play.key("R").key("y");
}

void playStories(StagedPlay& play) {
    const auto clearedStage = [](int campaign, int stage) {
        game.campaign = campaign;
        game.campaignStage = stage;
        for (int col = 0; col < columnCount; ++col) column(col).finished = 1;
        column(6).finished = 0;
        column(6).drawn = 39;
        cell(6, bottomRow) = enc::TheEnd;
    };
    for (int campaign = 0; campaign < campaignCount; ++campaign)
        for (int stage = 0; stage < campaignRow(campaign).scenarioCount; ++stage) {
            const std::string name =
                std::string(campaignRow(campaign).name) + " " + std::to_string(stage + 1);
            scene(play, "cleared " + name, [=] { clearedStage(campaign, stage); });
            play.click(boardCell(6, bottomRow)).move(boardCell(0, 0));
            holdAll(play, playWidgets);
            play.step("after " + name).key(keycode::space).key(keycode::space);
        }
    for (int campaign = 0; campaign < campaignCount; ++campaign) {
        scene(play, "new campaign " + std::to_string(campaign), [] {});
        play.key("N").key("y");
        for (int i = 0; i < campaign; ++i) play.key(keycode::down);
        play.key(keycode::enter).click({200, 200});
    }
}

}  // namespace gloomdeck
