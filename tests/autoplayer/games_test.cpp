// Whole games, and one number that tells whether any of them has changed.
#include <bit>

#include "content/game_flow.h"
#include "content/scenarios.h"
#include "platform/frame.h"
#include "tests/autoplayer/autoplayer_test.h"
#include "tests/support/invariants.h"

namespace gloomdeck {

namespace {

constexpr int longestRun = 3000;  // turns; a Ghost between two free cells can be chased for ever

/// Stops runs that are still going after the last turn.
bool stopLongRuns(InputQueue& queue) {
    if (game.turns < longestRun || keyWaits(queue)) return false;
    keyTyped(queue, keycode::space);
    return true;
}

/// FNV-1a over the record's bytes.
std::uint64_t mixedWithGame(std::uint64_t hash) {
    for (const unsigned char byte : std::bit_cast<std::array<unsigned char, sizeof game>>(game))
        hash = (hash ^ byte) * 0x100000001B3U;
    return hash;
}

bool isBombable(int col) {
    return !column(col).finished && (FirstEyeRow(col) != none || !IsEmptyOrEnd(cell(col, bottomRow)));
}

bool hasNoMove() {
    if (chooseColumn(assessBoard(eyeRowsNow())) != none) return false;
    if (!prefs.grief || !prefs.spellsSkills || count(bombs) == 0) return true;
    for (int col = 0; col < columnCount; ++col)
        if (isBombable(col)) return false;
    return true;
}

}  // namespace

class AutoplayerGames : public AutoplayerTest {
  protected:
    void SetUp() override {
        AutoplayerTest::SetUp();
        resetFrame();  // without a frame to draw on the same games go faster
        script::feedAtPoll(stopLongRuns);
        prefs.campaignChoice = none;
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
    for (int switches = 1; switches <= everySwitchOn; ++switches)
        for (int position = 0; position < scenarioTableSize; ++position) {
            allow(switches);
            play(position, 7);
            SCOPED_TRACE("switches " + std::to_string(switches) + ", scenario " + std::to_string(position));
            EXPECT_EQ(brokenInvariant(), "");
            EXPECT_EQ(prefs.scenarioOver, AllColumnsFinished() ? 1 : 0);
            EXPECT_TRUE(game.turns >= longestRun || hasNoMove());
            EXPECT_TRUE(switches != spellsSkillsOn || game.turns == 0);
        }
}

// Whoever changes the number says in the commit what plays differently now.
TEST_F(AutoplayerGames, PlayAsTheyAlwaysDid) {
    allow(everySwitchOn);
    std::uint64_t signature = 0xCBF29CE484222325U;
    int cleared = 0;
    for (int position = 0; position < scenarioTableSize; ++position)
        for (std::uint64_t seed = 1; seed <= 20; ++seed) {
            play(position, seed);
            signature = mixedWithGame(signature);
            cleared += prefs.scenarioOver;
        }
    EXPECT_EQ(signature, 16574575061083985712U);
    EXPECT_EQ(cleared, 32);
}

}  // namespace gloomdeck
