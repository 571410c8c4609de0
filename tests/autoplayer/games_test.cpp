// Whole games, and one number that tells whether any of them has changed.
#include <bit>

#include "content/game_flow.h"
#include "content/scenarios.h"
#include "platform/frame.h"
#include "tests/autoplayer/autoplayer_test.h"
#include "tests/support/invariants.h"

namespace gloomdeck {

// Whoever changes the number says in the commit what plays differently now.
TEST_F(AutoplayerTest, GamesEndAsTheyAlwaysDidWhereTheSwitchesLeaveNoMove) {
    resetFrame();                     // without a frame to draw on the same games go faster
    constexpr int longestRun = 1000;  // turns; a Ghost between two free cells can be chased for ever
    script::feedAtPoll([](InputQueue& queue) {
        if (game.turns >= longestRun && !keyWaits(queue)) keyTyped(queue, keycode::space);
        return false;
    });
    prefs.campaignChoice = none;
    std::uint64_t signature = 0xCBF29CE484222325U;  // FNV-1a over the records' bytes
    for (int switches = 1; switches <= allOn; ++switches)
        for (int played = 0; played < 2 * scenarioTableSize; ++played) {
            allow(switches);
            game = {};
            seedRolls(static_cast<std::uint64_t>(played));
            prefs.scenarioChoice = played / 2;
            startNewGame();
            RunAutoplayer();
            dropWaitingKeys(inputQueue());
            for (const unsigned char byte : std::bit_cast<std::array<unsigned char, sizeof game>>(game))
                signature = (signature ^ byte) * 0x100000001B3U;
            SCOPED_TRACE("switches " + std::to_string(switches) + ", game " + std::to_string(played));
            EXPECT_EQ(brokenInvariant(), "");
            EXPECT_EQ(prefs.scenarioOver, AllColumnsFinished() ? 1 : 0);
            EXPECT_TRUE(game.turns >= longestRun || chooseColumn(assessBoard(eyeRowsNow())) == none);
        }
    EXPECT_EQ(signature, 16693004617873508259U);
}

}  // namespace gloomdeck
