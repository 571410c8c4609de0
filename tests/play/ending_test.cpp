// The program is taken down at any moment: nothing is lost, and what is saved is a whole move.
#include <random>
#include <set>

#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

// A game with a bit of everything: a story page, moves, spells, screens, questions.
static Script smallGame() {
    Script script;
    script.passTitle().key(keycode::enter).key(keycode::space).check([] { giveHero(100); });
    for (int col = 0; col < columnCount; ++col) script.click(boardCell(col, bottomRow));
    script.click(statsCell(suns)).click(statsCell(bombs)).click(boardCell(3, 3)).key("T");
    script.key("q").click(statsCell(lightningBolts)).click(boardCell(0, 0)).click(statsCell(shields));
    script.key("H").key("q").key("P").button(id::toggle + 4).key("q").key("R").key("n");
    return script;
}

using EndingTest = QuickPlayTest;

TEST_F(EndingTest, ACloseRequestEndsTheProgramFromEveryScreenWithoutAQuestion) {
    const Script playing = Script().startScenario(0);
    std::vector<Script> players{Script(), Script().passTitle(), playing,
                                Script(playing).press(boardCell(0, 0))};
    for (const char* question : {"R", "N", "Q"}) players.push_back(Script(playing).key(question));
    for (Script& player : players) player.closeWindow();
    for (const Script& player : players) {
        EXPECT_EQ(firstRun(player), 0);
        EXPECT_EQ(dataFile("DGDP.dat"), gameBytes());
        EXPECT_EQ(dataFile("DGDG.dat").size(), sizeof prefs);
    }
}

TEST_F(EndingTest, ASignalAtAnyPollEndsWithAWholeMoveSaved) {
    std::set<std::string> wholeMoves{std::string(sizeof game, '\0')};  // no game yet
    const auto note = [&] {
        if (game.scoreStanding == none) wholeMoves.insert(gameBytes());  // else it is being set up
    };
    for (const Script::Step& step : smallGame().steps) script.check(note).then(step).check(note);
    std::array<std::vector<int>, 2> polls;  // of waits, and of actions
    script::feedAtPoll([&, poll = 0](InputQueue& queue) mutable {
        polls[queue.paused ? 1 : 0].push_back(poll++);
        return true;
    });
    EXPECT_EQ(run(script.closeWindow()), 0);
    ASSERT_GT(polls[0].size(), 0U);
    ASSERT_GT(polls[1].size(), 100U);
    std::mt19937 random(1);
    for (std::size_t i = 0; i < 24; ++i) {
        const std::vector<int>& from = polls[i % 3 ? 1 : 0];
        const int end = from[random() % from.size()];
        SCOPED_TRACE("ended at poll " + std::to_string(end));
        folder = makeProgramFolder(false);
        resetProgram();
        script::feedAtPoll([left = end](InputQueue& queue) mutable {
            if (left-- != 0) return true;
            endRequested(queue);
            startScript({});  // it must end by itself
            return true;
        });
        EXPECT_EQ(run(smallGame()), 0);
        EXPECT_TRUE(wholeMoves.contains(dataFile("DGDP.dat")));
    }
}

TEST_F(EndingTest, ALostWindowSavesTheRecordsOfTheLastWholeMoveAndAGameThatLivesOnSavesLaterOnes) {
    std::string before;
    script.startScenario(0).check([] { giveHero(100); }).click(statsCell(shields)).check([&] {
        board(0, bottomRow) = enc::SkeletonKing;
        script::feedWhenPausing([](InputQueue& queue) {
            if (queue.paused && count(health) < 100) script::loseWindow();
            return true;
        });
    });
    script.check([&] { before = gameBytes(); }).click(boardCell(0, bottomRow)).check([&] {
        EXPECT_EQ(dataFile("DGDP.dat"), before);
        EXPECT_NE(gameBytes(), before);
    });
    EXPECT_EQ(run(script.closeWindow()), 0);
    EXPECT_EQ(dataFile("DGDP.dat"), gameBytes());
}

TEST_F(EndingTest, ACloseRequestOnAStoryPageKeepsTheNewGameBeforeAnyMove) {
    const Script first = Script().passTitle().key(keycode::enter);
    Script next = Script(first).key(keycode::space).hurry().clearBoard().check([] {
        prefs.switches = everySwitch;  // the autoplayer would go on
        setSwitch(Switch::restartSwitch, false);
        setSwitch(Switch::skipText, false);
    });
    next.key(keycode::space);
    for (const auto& [player, stage] : {std::pair{first, 0}, {next, 1}}) {
        std::string dealt;
        Script closing = Script(player).check([&] { dealt = gameBytes(); }).closeWindow();
        EXPECT_EQ(firstRun(closing), 0);
        EXPECT_EQ(dataFile("DGDP.dat"), gameBytes());
        EXPECT_EQ(gameBytes().substr(0, 460), dealt.substr(0, 460))
            << "nothing was dealt or met after the page";
        EXPECT_EQ(std::tuple(game.campaign, game.campaignStage, game.scoreStanding),
                  std::tuple(0, stage, none));
        EXPECT_EQ(dataFile("DGDG.dat").at(4), screen_id::play);
    }
}

TEST_F(EndingTest, AWindowLostOnAStoryPageLeavesNoHalfStartedGame) {
    script.passTitle().key(keycode::enter).check([&] {
        script::loseWindow();
        EXPECT_EQ(dataFile("DGDP.dat"), std::string(sizeof game, '\0'));
        EXPECT_EQ(dataFile("DGDG.dat").at(4), screen_id::selection);
    });
    EXPECT_EQ(run(script.key(keycode::space).closeWindow()), 0);
}

}  // namespace gloomdeck
