// Whole games: from the title to the banner, on in the next run, and starts with something missing or
// damaged.
#include <filesystem>
#include <fstream>
#include <random>

#include "content/campaigns.h"
#include "platform/frame.h"
#include "prefs/switches.h"
#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

static void expectOver(bool goesOn = false) {
    EXPECT_EQ(script::windowTitle(), "Gloomdeck 1.2");
    EXPECT_TRUE(prefs.scenarioOver);
    EXPECT_EQ(widget(id::continueGame).hidden, !goesOn);
}

TEST_F(PlayTest, ABoardIsClearedSavedAndFoundAgain) {
    script.screen("Gloomdeck 1.2").passTitle().screen("Select a game").key(keycode::right);
    script.type("\b\b\b\b\b\b\b\bMo").button(id::done);
    const auto won = [] { expectOver(); };
    script.clearBoard().check(won).key(keycode::space).check(won);
    script.button(id::exit).key("n").screen("Gloomdeck 1.2").button(id::exit).key("y");
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(dataFile("DGDP.dat"), gameBytes());
    EXPECT_EQ(dataFile("DGDG.dat"), std::string(reinterpret_cast<const char*>(&prefs), 52));
    Script again = Script().passTitle().check(won).button(id::replay).check([] { EXPECT_EQ(game.turns, 0); });
    EXPECT_EQ(restart(again.closeWindow()), 0);
    EXPECT_EQ(nameText(game.playerName), "Mo");
}

TEST_F(QuickPlayTest, ABoardInPlayIsTheSameInTheNextRun) {
    script.startScenario(2).check([] { giveHero(40); }).key("+").key("P").button(id::toggle + 6).key("q");
    for (int i = 0; i < 10; ++i) script.click(boardCell(i % columnCount, bottomRow));
    finish();
    const std::string before = gameBytes();
    script = Script().passTitle().screen("Gloomdeck 1.2").check([&] {
        EXPECT_EQ(gameBytes(), before);
        EXPECT_EQ(std::pair(game.scenario, game.turns), std::pair(1, 10)) << "Easy, the third of the list";
        EXPECT_EQ(std::pair(prefs.GameSpeed, switchIsOn(Switch::skipText)), std::pair(3, true));
    });
    EXPECT_EQ(restart(script.closeWindow()), 0);
    EXPECT_EQ(restart(Script().closeWindow()), 0) << "at the title";
    EXPECT_EQ(dataFile("DGDP.dat"), before);
}

TEST_F(QuickPlayTest, EveryCampaignGoesFromItsFirstStoryToItsBanner) {
    for (int campaign = 0; campaign < campaignCount; ++campaign) {
        SCOPED_TRACE(campaignRow(campaign).name);
        script = Script().passTitle();
        for (int i = 0; i < campaign; ++i) script.key(keycode::down);
        script.key(keycode::enter);
        const int stages = campaignRow(campaign).scenarioCount;
        for (int stage = 0; stage < stages; ++stage) {
            script.key(stage % 2 ? keycode::space : keycode::escape).check([=] {
                EXPECT_EQ(game.scenario, stageEntry(campaignRow(campaign), stage));
                EXPECT_EQ(std::exchange(level(toughness), 35), stage > 0 ? 35 : 0);
            });
            const auto over = [=] { expectOver(stage + 1 < stages); };
            script.hurry().clearBoard().check(over).key("H").key("q").check(over);
            stage % 3 ? script.key(stage % 3 == 1 ? keycode::space : keycode::enter)
                      : script.button(id::continueGame);
        }
        script.key(keycode::space).key("T").check([] { expectOver(); });
        finish();
    }
}

TEST_F(QuickPlayTest, AClearedStageWaitsForItsContinueInTheNextRunAndIsNotLeftUnasked) {
    script.passTitle().button(id::done).click({100, 100}).hurry().clearBoard();
    finish();
    const auto waits = [] { expectOver(true); };
    script = Script().passTitle().check(waits).key("P").key("q").check(waits);
    for (const char* asking : {"R", "N"}) script.key(asking).key("n").check(waits);
    for (const int asking : {id::replay, id::newGame}) script.button(asking).key("n").check(waits);
    script.button(id::continueGame).click({0, 0}).hurry().clearBoard();
    EXPECT_EQ(restart(script.closeWindow()), 0);
    EXPECT_TRUE(game.campaignWon);
}

TEST_F(QuickPlayTest, WithoutPicturesAndADataFolderTheGameIsPlayedAndNothingIsKept) {
    script.check([] { EXPECT_EQ(pixelAt(0, 0), 0xFF000000); }).startScenario(0).hurry().clearBoard();
    script.key("H").key("q").key("P").key("q").check([] { EXPECT_TRUE(prefs.scenarioOver); }).closeWindow();
    for (const bool isFile : {false, true}) {
        std::filesystem::remove_all(folder + "/Data");
        if (isFile) std::ofstream(folder + "/Data") << "no folder";
        EXPECT_EQ(restart(script), 0);
        EXPECT_EQ(script::warnings().size(), 4U) << "one for each picture";
        EXPECT_EQ(std::filesystem::exists(folder + "/Data"), isFile);
    }
}

TEST_F(QuickPlayTest, OneDataFileAloneIsNotReadAndIsReplaced) {
    writeDataFile("DGDG.dat", std::string(60, '\x02'));
    EXPECT_EQ(run(Script().passTitle().screen("Select a game").closeWindow()), 0);
    EXPECT_EQ(dataFile("DGDG.dat").substr(12, 8), "Alistair");
    EXPECT_EQ(dataFile("DGDG.dat").substr(52), std::string(8, '\x02'));
    EXPECT_EQ(dataFile("DGDP.dat").size(), sizeof game);
}

TEST_F(QuickPlayTest, DataFilesOfAnyBytesArePlayed) {
    std::mt19937 random(20);
    const auto meddle = [&, poll = 0](InputQueue& queue) mutable {
        const auto number = static_cast<int>(random() % 100000);
        if (++poll == 400) endRequested(queue);
        if (poll % 20 == 0) keyTyped(queue, std::string(1, "PTHNRq y\r"[number % 9]));
        if (poll % 20 == 10) clickAt(queue, {number % frameWidth, number / 9 % frameHeight});
        return true;
    };
    for (int i = 0; i < 40; ++i) {
        for (const char* name : {"DGDP.dat", "DGDG.dat"}) {
            std::string bytes(random() % 700, '\0');
            for (std::size_t at = 0; at < bytes.size(); at += i % 2 ? 1 : 4)  // mostly small numbers
                bytes[at] = static_cast<char>(random() % (i % 2 ? 256 : 64));
            writeDataFile(name, bytes);
        }
        EXPECT_EQ(restart(Script().check([&] { script::feedAtPoll(meddle); })), 0) << i;
        EXPECT_GE(dataFile("DGDP.dat").size(), sizeof game);
    }
}

}  // namespace gloomdeck
