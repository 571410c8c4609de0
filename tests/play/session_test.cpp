// Whole games: from the title to the banner, and on in the next run.
#include "content/campaigns.h"
#include "content/story_texts.h"
#include "platform/frame.h"
#include "prefs/score.h"
#include "rules/board.h"
#include "shell/layout.h"
#include "shell/panels.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

// Drawing it again changes nothing.
bool stands(const std::function<void()>& draw) {
    const Image before = screen();
    draw();
    const bool same = screen().pixels == before.pixels;
    screen() = before;
    return same;
}

void expectBanner(const char* text) {
    EXPECT_EQ(script::windowTitle(), "Gloomdeck 1.2");
    EXPECT_TRUE(prefs.scenarioOver);
    const Button& continueButton = widget(id::continueGame);
    EXPECT_EQ(continueButton.hidden, std::string(text) != "Campaign...");
    EXPECT_TRUE(stands([&] {
        drawBoardLabel(text, 193, 30);
        if (!continueButton.hidden) drawButton(continueButton);
    })) << text;
    const std::string score = "Score: " + std::to_string(ComputeScore());
    EXPECT_TRUE(stands([&] { drawBoardLabel(score, -13, 12); })) << score;
}

void expectStory(int campaign, int number) {
    const std::string text(storyText(campaign, number));
    EXPECT_TRUE(stands([&] { drawWrappedText(text, 16, 48, 26, 12); })) << text;
    EXPECT_EQ(pixelAt(8, 41), 0xFF000000);
}

void goOn(Script& script, int way) {
    if (way == 0) script.button(id::continueGame);
    if (way > 0) script.key(way == 1 ? keycode::space : keycode::enter);
}

void playStages(Script& script, int campaign) {
    for (int stage = 0; stage < campaignRow(campaign).scenarioCount; ++stage) {
        script.check([=] { expectStory(campaign, stage + 1); })
            .key(stage % 2 ? keycode::space : keycode::escape);
        script.check([=] {
            EXPECT_EQ(game.scenario, stageEntry(campaignRow(campaign), stage));
            EXPECT_EQ(level(toughness), stage > 0 ? 35 : 0);
            level(toughness) = 35;
        });
        const bool last = stage + 1 == campaignRow(campaign).scenarioCount;
        script.hurry().clearBoard().check([=] { expectBanner(last ? "Campaign Won!" : "Campaign..."); });
        if (last) script.key("H").key("q").check([] { expectBanner("Campaign Won!"); });
        goOn(script, stage % 3);
    }
}

}  // namespace

TEST_F(PlayTest, ABoardIsClearedSavedAndFoundAgain) {
    Script script;
    script.passTitle().screen("Select a game").key(keycode::right);
    for (int i = 0; i < 8; ++i) script.key(keycode::backspace);
    script.type("Mo").button(id::done).newest("Click on the bottom row of the map grid above.");
    const auto won = [] { expectBanner("Congratulations!"); };
    script.clearBoard().check(won).key(keycode::space).check(won);
    script.button(id::exit).key("n").screen("Gloomdeck 1.2").button(id::exit).key("y");
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(dataFile("DGDP.dat"), gameBytes());
    EXPECT_EQ(dataFile("DGDG.dat"), std::string(reinterpret_cast<const char*>(&prefs), 52));

    Script again;
    again.passTitle().check(won).button(id::replay).check([] {
        EXPECT_EQ(game.turns, 0);
        EXPECT_EQ(nameText(game.playerName), "Mo");
    });
    EXPECT_EQ(restart(again.closeWindow()), 0);
}

TEST_F(QuickPlayTest, ABoardInPlayIsTheSameInTheNextRun) {
    script.startScenario(2).check([] { giveHero(40); }).key("+").key("P").button(id::toggle + 6).key("q");
    for (int i = 0; i < 10; ++i) script.click(boardCell(i % columnCount, bottomRow));
    EXPECT_EQ(run(script.closeWindow()), 0);
    const std::string before = gameBytes();
    Script again;
    again.passTitle().screen("Gloomdeck 1.2").check([&] {
        EXPECT_EQ(gameBytes(), before);
        EXPECT_EQ(game.scenario, 1) << "the third of the list is Easy";
        EXPECT_EQ(game.turns, 10);
        EXPECT_EQ(prefs.GameSpeed, 3);
        EXPECT_TRUE(prefs.skipText);
    });
    EXPECT_EQ(restart(again.closeWindow()), 0);
    EXPECT_EQ(dataFile("DGDP.dat"), before);
}

TEST_F(QuickPlayTest, EveryCampaignGoesFromItsFirstStoryToItsBanner) {
    for (int campaign = 0; campaign < campaignCount; ++campaign) {
        SCOPED_TRACE(campaignRow(campaign).name);
        script = Script().passTitle();
        for (int i = 0; i < campaign; ++i) script.key(keycode::down);
        playStages(script.key(keycode::enter), campaign);
        script.key(keycode::space).key("T").check([] { expectBanner("Campaign Won!"); });
        finish();
    }
}

TEST_F(QuickPlayTest, AClearedStageWaitsForItsContinueInTheNextRun) {
    script.passTitle().button(id::done).click({100, 100}).hurry().clearBoard();
    finish();
    const auto waits = [] { expectBanner("Campaign..."); };
    Script again;
    again.passTitle().check(waits).key("P").key("q").check(waits).button(id::continueGame);
    again.check([] { expectStory(0, 2); }).click({0, 0}).hurry().clearBoard();
    EXPECT_EQ(restart(again.closeWindow()), 0);
    EXPECT_TRUE(game.campaignWon);
}

}  // namespace gloomdeck
