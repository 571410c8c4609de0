// Whole games, and one number that tells whether any of them has changed.
#include <bit>

#include "autoplayer/autoplayer.h"
#include "content/game_flow.h"
#include "content/scenarios.h"
#include "platform/frame.h"
#include "platform/input.h"
#include "tests/autoplayer/autoplayer_test.h"
#include "tests/support/game_test.h"
#include "tests/support/invariants.h"

namespace gloomdeck {

namespace {

constexpr int longestRun = 3000;  // turns; a Ghost between two free cells can be chased for ever

}  // namespace

class AutoplayerGames : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        resetFrame();  // without a frame to draw on the same games go faster
        prefs.campaignChoice = none;
        script::feedAtPoll([](InputQueue& queue) {
            if (game.turns >= longestRun && !keyWaits(queue)) keyTyped(queue, keycode::space);
            return false;
        });
    }

    static void play(int listPosition, std::uint64_t seed) {
        game = {};
        seedRolls(seed);
        prefs.scenarioChoice = listPosition;
        startNewGame();
        RunAutoplayer();
        dropWaitingKeys(inputQueue());
    }
};

TEST_F(AutoplayerGames, EndWhereTheSwitchesLeaveNoMove) {
    for (int switches = 1; switches <= allOn; ++switches)
        for (int position = 0; position < scenarioTableSize; ++position) {
            allow(switches);
            play(position, 7);
            SCOPED_TRACE("switches " + std::to_string(switches) + ", scenario " + std::to_string(position));
            EXPECT_EQ(brokenInvariant(), "");
            EXPECT_EQ(prefs.scenarioOver, AllColumnsFinished() ? 1 : 0);
            EXPECT_TRUE(game.turns >= longestRun || chooseColumn(assessNow()) == none);
        }
}

// Whoever changes the number says in the commit what plays differently now.
TEST_F(AutoplayerGames, PlayAsTheyAlwaysDid) {
    allow(allOn);
    std::uint64_t signature = 0xCBF29CE484222325U;  // FNV-1a over the records' bytes
    for (int position = 0; position < scenarioTableSize; ++position)
        for (std::uint64_t seed = 1; seed <= 20; ++seed) {
            play(position, seed);
            for (const unsigned char byte : std::bit_cast<std::array<unsigned char, sizeof game>>(game))
                signature = (signature ^ byte) * 0x100000001B3U;
        }
    EXPECT_EQ(signature, 16574575061083985712U);
}

}  // namespace gloomdeck
