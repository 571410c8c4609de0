// The program is taken down at any moment: nothing is lost, and what is saved is a whole move.
#include <filesystem>
#include <random>
#include <set>

#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

// A game with a bit of everything: a story page, moves, spells, screens, questions.
Script smallGame() {
    Script script;
    script.passTitle().key(keycode::enter).key(keycode::space).check([] {
        giveHero(100);
        level(lockpicking) = 30;
    });
    for (int col = 0; col < columnCount; ++col) script.click(boardCell(col, bottomRow));
    script.click(statsCell(suns)).click(statsCell(bombs)).click(boardCell(3, 3)).key("T");
    script.key("q").click(statsCell(lightningBolts)).click(boardCell(0, 0)).click(statsCell(shields));
    script.key("H").key("q").key("P").button(id::toggle + 4).key("q").key("R").key("n");
    return script;
}

class EndingTest : public QuickPlayTest {
  protected:
    void firstRunEndedAt(long poll) {
        for (const char* name : {"DGDP.dat", "DGDG.dat"}) std::filesystem::remove(folder + "/Data/" + name);
        resetProgram();
        script::feedAtPoll([left = poll](InputQueue& queue) mutable {
            if (left-- != 0) return true;
            endRequested(queue);
            dropScript();
            return true;
        });
        EXPECT_EQ(run(smallGame()), 0) << "ended at poll " << poll;
    }

    void expectSaved() {
        EXPECT_EQ(dataFile("DGDP.dat"), gameBytes());
        EXPECT_EQ(dataFile("DGDG.dat").size(), sizeof prefs);
    }
};

// What the records are between moves, and which polls belong to an action.
struct Watched {
    std::set<std::string> wholeMoves{std::string(sizeof game, '\0')};  // no game yet
    std::vector<long> otherPolls;
    std::vector<long> pollsOfActions;
    long polls = 0;
};

Script watching(const Script& plain, Watched& watched) {
    const auto note = [&] {
        if (game.scoreStanding == none) watched.wholeMoves.insert(gameBytes());  // else it is being set up
    };
    Script all;
    for (const Script::Step& step : plain.steps) all.check(note).then(step).check(note);
    return all;
}

}  // namespace

TEST_F(EndingTest, ACloseRequestEndsTheProgramFromEveryScreenWithoutAQuestion) {
    const auto expectEnd = [this](const Script& whole) { EXPECT_EQ(firstRun(whole), 0), expectSaved(); };
    expectEnd(Script().closeWindow());  // at the title
    expectEnd(Script().passTitle().closeWindow());
    expectEnd(Script().startScenario(0).closeWindow());
    expectEnd(Script().startScenario(0).press(boardCell(0, 0)).closeWindow());
    for (const char* question : {"R", "N", "Q"})
        expectEnd(Script().startScenario(0).key(question).closeWindow());
}

TEST_F(EndingTest, ACloseRequestIsRememberedUntilAStoryIsRead) {
    script.passTitle().key(keycode::enter).closeWindow().key("z").key(keycode::space);
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(game.campaign, 0);
    expectSaved();
}

TEST_F(EndingTest, ACloseRequestAtTheTitleOfASavedGameKeepsTheGame) {
    EXPECT_EQ(run(Script().startScenario(0).click(boardCell(1, bottomRow)).closeWindow()), 0);
    const std::string before = dataFile("DGDP.dat");
    EXPECT_EQ(restart(Script().closeWindow()), 0);
    EXPECT_EQ(dataFile("DGDP.dat"), before);
}

TEST_F(EndingTest, ASignalAtAnyPollEndsWithAWholeMoveSaved) {
    Watched watched;
    script::feedAtPoll([&](InputQueue& queue) {
        (queue.paused ? watched.pollsOfActions : watched.otherPolls).push_back(watched.polls++);
        return true;
    });
    EXPECT_EQ(run(watching(smallGame(), watched).closeWindow()), 0);
    ASSERT_GT(watched.pollsOfActions.size(), 100U);
    std::mt19937 random(1);
    for (int i = 0; i < 24; ++i) {
        const std::vector<long>& from = i % 3 ? watched.pollsOfActions : watched.otherPolls;
        const long end = from[random() % from.size()];
        firstRunEndedAt(end);
        EXPECT_TRUE(watched.wholeMoves.contains(dataFile("DGDP.dat"))) << "ended at poll " << end;
        EXPECT_EQ(dataFile("DGDG.dat").size(), sizeof prefs);
    }
}

TEST_F(EndingTest, ALostWindowSavesOnceTheRecordsOfTheLastWholeMove) {
    std::string before;
    script.startScenario(0).check([&] {
        giveHero(100);
        board(0, bottomRow) = enc::SkeletonKing;
    });
    script.click(statsCell(shields)).check([&] { before = gameBytes(); });
    script.then([](InputQueue&) {
        script::feedWhenPausing([](InputQueue& queue) {
            if (queue.paused && count(health) < 100) script::loseWindow();
            return true;
        });
    });
    script.click(boardCell(0, bottomRow)).check([&] {
        EXPECT_EQ(dataFile("DGDP.dat"), before);
        EXPECT_NE(gameBytes(), before);
    });
    EXPECT_EQ(run(script.closeWindow()), 0);
    EXPECT_EQ(dataFile("DGDP.dat"), before) << "saved a second time";
}

TEST_F(EndingTest, AWindowLostOnAStoryPageLeavesNoHalfStartedGame) {
    script.passTitle().key(keycode::enter).check(script::loseWindow).key(keycode::space);
    EXPECT_EQ(run(script.closeWindow()), 0);
    EXPECT_EQ(dataFile("DGDP.dat"), std::string(sizeof game, '\0'));
    EXPECT_EQ(dataFile("DGDG.dat")[4], screen_id::selection);
}

}  // namespace gloomdeck
