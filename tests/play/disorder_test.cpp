// Keys and clicks without any sense on any screen, and data files of any bytes: no crash, no hang.
#include <algorithm>
#include <random>
#include <set>

#include "shell/layout.h"
#include "shell/tiles.h"
#include "tests/support/invariants.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

using Random = std::mt19937;

int upTo(Random& random, int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); }

std::string randomKey(Random& random) {
    constexpr std::array<std::string_view, 12> others{
        keycode::enter, keycode::escape, keycode::backspace, keycode::tab, keycode::up, keycode::down,
        keycode::left,  keycode::right,  keycode::space,     "T",          "P",         "H"};
    const auto pick = static_cast<std::size_t>(upTo(random, 30));
    return pick < others.size() ? std::string(others[pick])
                                : std::string(1, static_cast<char>(upTo(random, 255)));
}

void doSomething(Random& random, InputQueue& queue) {
    const Point at{upTo(random, 407), upTo(random, 487)};
    switch (upTo(random, 9)) {
        case 0: return pointerLeft(queue);
        case 1: return pointerMoved(queue, at.x, at.y);
        case 2: return buttonChanged(queue, true);
        case 3: return buttonChanged(queue, false);
        case 4: return clickAt(queue, at);
        case 5:
            return clickAt(queue, boardCell(upTo(random, 6), upTo(random, 1) ? bottomRow : upTo(random, 6)));
        case 6:
            return clickAt(queue,
                           upTo(random, 1) ? statsCell(upTo(random, 8)) : widgetCentre(upTo(random, 36)));
        default: return keyTyped(queue, randomKey(random));
    }
}

std::string randomBytes(Random& random, std::size_t size) {
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

class DisorderTest : public QuickPlayTest {
  protected:
    // So many things at any polls, then the end; the answer is how many were done before the program ended.
    int playNonsense(int actions, bool soundRecords) {
        resetProgram();
        int left = actions;
        script::feedWhenIdle([](InputQueue&) { return true; });
        script::feedAtPoll([&](InputQueue& queue) {
            if (upTo(random, 30) != 0) return true;
            EXPECT_EQ(soundRecords ? brokenInvariant() : "", "");
            screensSeen.insert(prefs.currentScreen);
            mostTurns = std::max(mostTurns, game.turns);
            if (left > 0)
                doSomething(random, queue);
            else
                endRequested(queue);
            --left;
            return true;
        });
        EXPECT_EQ(runToItsEnd(folder), 0);
        return actions - std::max(left, 0);
    }

    std::string randomFile(std::size_t recordSize) {
        const std::array<std::size_t, 5> sizes{0, 1, recordSize / 2, recordSize, recordSize + 100};
        std::string bytes = randomBytes(random, sizes[random() % sizes.size()]);
        const bool smallNumbers = upTo(random, 1) != 0;
        for (std::size_t i = 0; smallNumbers && i < bytes.size(); ++i)
            bytes[i] = i % 4 ? '\0' : static_cast<char>(bytes[i] & 63);
        return bytes;
    }

    Random random{20};
    std::set<int> screensSeen;
    int mostTurns = 0;
};

}  // namespace

TEST_F(DisorderTest, NonsenseOnEveryScreenKeepsTheRecordsSound) {
    for (int done = 0; done < 3000;) done += playNonsense(3000 - done, true);
    for (const int screen : {screen_id::selection, screen_id::play, screen_id::help, screen_id::preferences,
                             screen_id::training})
        EXPECT_TRUE(screensSeen.contains(screen)) << screen;
    EXPECT_GT(mostTurns, 40);
}

TEST_F(DisorderTest, DataFilesOfAnyBytesAreSurvived) {
    for (int i = 0; i < 40; ++i) {
        SCOPED_TRACE(i);
        const std::string gameFile = randomFile(sizeof(GameState));
        writeDataFile("DGDP.dat", gameFile);
        writeDataFile("DGDG.dat", randomFile(sizeof(Prefs)));
        playNonsense(25, false);
        const std::size_t size = std::max(gameFile.size(), sizeof(GameState));
        EXPECT_EQ(dataFile("DGDP.dat").size(), size);
        EXPECT_TRUE(
            dataFile("DGDP.dat").ends_with(gameFile.substr(std::min(gameFile.size(), sizeof(GameState)))));
    }
}

TEST_F(DisorderTest, ADamagedGameThatIsOnlyLookedAtIsNotRewritten) {
    for (int i = 0; i < 30; ++i) {
        SCOPED_TRACE(i);
        std::string gameFile = randomBytes(random, sizeof(GameState));
        gameFile[24 + 40] &= ~1;                                       // a column is not finished
        for (std::size_t at = 416; at < 444; ++at) gameFile[at] = 11;  // skills
        for (std::size_t at = 419; at < 444; at += 4) gameFile[at] = '\xFF';
        std::string prefsFile = randomBytes(random, sizeof(Prefs));
        prefsFile.replace(4, 8, std::string("\2\0\0\0\0\0\0\0", 8));  // the play screen; the reserved field
        prefsFile[48] &= '\x80';                                      // no switch is on
        writeDataFile("DGDP.dat", gameFile);
        writeDataFile("DGDG.dat", prefsFile);
        EXPECT_EQ(restart(Script().passTitle().closeWindow()), 0);
        EXPECT_EQ(dataFile("DGDP.dat"), gameFile);
        EXPECT_EQ(dataFile("DGDG.dat"), prefsFile);
    }
}

}  // namespace gloomdeck
