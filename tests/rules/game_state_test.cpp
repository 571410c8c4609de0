// The record's bytes, and damaged records in play.
#include "rules/game_state.h"

#include <cstring>
#include <random>

#include "prefs/score.h"
#include "rules/board_turn.h"
#include "rules/encounter.h"
#include "rules/show.h"
#include "shell/play/board_end.h"
#include "shell/play/stats_column.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

void drawEverything() {
    drawBoard();
    DrawDayDisplay();
    ShowScoreLine();
    for (int item = 0; item < itemCount; ++item) drawItemCount(item, 1);
    for (int skill = 0; skill < skillCount; ++skill) drawSkill(skill, 1);
    for (int power = 0; power < powerCount; ++power) drawPower(power, true);
}

// All that no play may change: the name, the places and all that is reserved or unused.
std::string bytesThatStay() {
    const GameState played = game;
    for (int col = 0; col < columnCount; ++col) {
        for (int row = 0; row < rowCount; ++row) cell(col, row) = 0;
        column(col).drawn = 0;
        column(col).finished = 0;
    }
    for (int item = 0; item < itemCount; ++item) count(item) = 0;
    for (int skill = 0; skill < skillCount; ++skill) level(skill) = 0;
    for (int power = 0; power < powerCount; ++power) turnsLeft(power) = 0;
    game.turns = game.scoreStanding = 0;
    game.campaignWon = 0;
    std::string bytes = gameBytes();
    game = played;
    return bytes;
}

void playEverything() {
    prefs.scenarioOver = 0;
    const std::string staying = bytesThatStay();
    drawEverything();
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < rowCount; ++row) EXPECT_EQ(Encounter(col, row, row % 2) & ~1, 0);
    BoardTurn();
    drawEverything();
    EXPECT_EQ(bytesThatStay(), staying);
}

}  // namespace

using RecordTest = GameTest;

TEST_F(RecordTest, KeepsItsNumbersLeastByteFirstAndItsFlagsInTheLowestBit) {
    game = {};
    count(keys) = 0x01020304;
    column(2).finished = 1;
    game.campaignWon = 1;
    std::string bytes(484, '\0');
    bytes.replace(376, 4, "\4\3\2\1");
    bytes[24 + 2 * 44 + 40] = bytes[472] = 1;
    EXPECT_EQ(gameBytes(), bytes);
}

TEST_F(RecordTest, LimitsAndRandomBytesArePlayedOnAndWhatIsReservedStays) {
    constexpr std::array<std::uint32_t, 4> limits{0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, encounterCount};
    std::mt19937 random(11);
    seedRolls(4);
    for (std::size_t record = 0; record < 20; ++record) {
        SCOPED_TRACE(record);
        std::array<std::uint32_t, sizeof(GameState) / 4> words{};
        for (auto& word : words)
            word = record < limits.size() ? limits[record] : static_cast<std::uint32_t>(random());
        std::memcpy(&game, words.data(), sizeof game);
        for (int at = 0; record < 12 && at < columnCount * rowCount; ++at)
            board(at % columnCount, at / columnCount) = static_cast<int>(random() % (encounterCount + 1));
        playEverything();
    }
}

}  // namespace gloomdeck
