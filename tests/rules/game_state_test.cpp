// The record as a file, damaged records, and what no play may break.
#include "rules/game_state.h"

#include <cstring>
#include <fstream>
#include <iterator>
#include <limits>
#include <random>
#include <vector>

#include "content/deal_board.h"
#include "content/scenarios.h"
#include "platform/host_script.h"
#include "prefs/saved_data.h"
#include "prefs/score.h"
#include "rules/board_turn.h"
#include "rules/costs.h"
#include "rules/day_display.h"
#include "rules/encounter.h"
#include "rules/hero.h"
#include "rules/stats_column.h"
#include "shell/board_view.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();

class RecordTest : public GameTest {
  protected:
    static void drawEverything() {
        drawBoard();
        DrawDayDisplay();
        ShowScoreLine();
        for (int item = 0; item < itemCount; ++item) drawItemCount(item, 1);
        for (int skill = 0; skill < skillCount; ++skill) drawSkill(skill, 1);
        for (int power = 0; power < powerCount; ++power) drawPower(power, true);
    }

    static void meetEverything() {
        for (int col = 0; col < columnCount; ++col)
            for (int row = 0; row < rowCount; ++row) {
                const int result = Encounter(col, row, row % 2);
                EXPECT_TRUE(result == 0 || result == 1);
            }
        BoardTurn();
    }
};

std::vector<int> numbersAt(const std::string& bytes, const std::vector<std::size_t>& offsets) {
    std::vector<int> numbers;
    for (const std::size_t offset : offsets) {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < 4; ++i)
            value |= std::uint32_t{static_cast<std::uint8_t>(bytes.at(offset + i))} << (8 * i);
        numbers.push_back(static_cast<int>(value));
    }
    return numbers;
}

int totalDrawn() {
    int total = 0;
    for (int col = 0; col < columnCount; ++col) total += column(col).drawn;
    return total;
}

void expectSound(int drawnBefore) {
    for (int col = 0; col < columnCount; ++col) {
        for (int row = 0; row < rowCount; ++row) {
            ASSERT_TRUE(cell(col, row) >= 0 && cell(col, row) < enc::count);
            ASSERT_TRUE(!IsPastEnd(col, row) || cell(col, row) == enc::Empty);
        }
        ASSERT_TRUE(!column(col).finished || cell(col, bottomRow) == enc::TheEnd);
    }
    ASSERT_TRUE(totalDrawn() == drawnBefore || totalDrawn() == drawnBefore + 1);
    for (int item = 0; item < health; ++item) ASSERT_GE(count(item), 0);
    for (const std::int32_t skill : game.skills) ASSERT_TRUE(skill >= 0 && skill <= 95);
    for (const std::int32_t turns : game.powers) ASSERT_GE(turns, 0);
}

}  // namespace

TEST_F(RecordTest, StandsInItsFileByteForByte) {
    storeName(game.playerName, "Alistair");
    column(0).location = 8;
    column(6).drawn = -2;
    board(6, 6) = enc::Flower;
    column(2).finished = 1;
    count(keys) = 0x01020304;
    count(health) = -5;
    level(toughness) = 95;
    turnsLeft(deflection) = 7;
    game.campaign = none;
    game.campaignStage = 3;
    game.scenario = 6;
    game.campaignWon = 1;
    game.turns = 1000;
    game.scoreStanding = -2;
    const std::string folder = makeProgramFolder();
    script::setFolder(folder);
    SaveData();
    std::ifstream file(folder + "/Data/DGDP.dat", std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    ASSERT_EQ(bytes.size(), 484U);
    EXPECT_EQ(bytes.substr(0, 24), std::string("Alistair") + std::string(16, '\0'));
    EXPECT_EQ(numbersAt(bytes, {24, 24 + 6 * 44 + 4, 24 + 6 * 44 + 32, 24 + 2 * 44 + 40, 376, 408}),
              (std::vector{8, -2, 23, 1, 0x01020304, -5}));
    EXPECT_EQ(numbersAt(bytes, {436, 452, 460, 464, 468, 472, 476, 480}),
              (std::vector{95, 7, -1, 3, 6, 1, 1000, -2}));
}

TEST_F(RecordTest, NumbersAtTheirLimitsNeitherStopNorBreakTheGame) {
    seedRolls(3);
    for (const std::int32_t value : {most, least, -1, 24}) {
        for (int col = 0; col < columnCount; ++col) {
            column(col) = {value, value, {}, 0, 0};
            for (int row = 0; row < rowCount; ++row) board(col, row) = (col * rowCount + row) % 25;
        }
        game.inventory.fill(value);
        game.skills.fill(value);
        game.powers.fill(value);
        game.campaign = game.campaignStage = game.scenario = game.turns = game.scoreStanding = value;
        drawEverything();
        meetEverything();
        drawEverything();
    }
}

TEST_F(RecordTest, RandomBytesArePlayedOnAndTheReservedSlotsStay) {
    std::mt19937 bytes(11);
    seedRolls(4);
    for (int record = 0; record < 16; ++record) {
        std::array<unsigned char, sizeof(GameState)> noise{};
        for (unsigned char& byte : noise) byte = static_cast<unsigned char>(bytes() & 0xFF);
        std::memcpy(&game, noise.data(), sizeof game);
        if (record % 2 == 0)
            for (int col = 0; col < columnCount; ++col)
                for (int row = 0; row < rowCount; ++row)
                    board(col, row) = static_cast<int>(bytes() % enc::count);
        const GameState before = game;
        drawEverything();
        meetEverything();
        EXPECT_EQ(game.playerName, before.playerName);
        EXPECT_EQ(std::memcmp(&game.columns[7], &before.columns[7], sizeof(Column)), 0);
        for (std::size_t col = 0; col < 7; ++col) {
            EXPECT_EQ(game.columns[col].cells[7], before.columns[col].cells[7]);
            EXPECT_EQ(game.columns[col].unusedFlags, before.columns[col].unusedFlags);
            EXPECT_EQ(game.columns[col].location, before.columns[col].location);
        }
        EXPECT_EQ(game.inventory[9], before.inventory[9]);
        EXPECT_EQ(game.skills[6], before.skills[6]);
        EXPECT_EQ(game.powers[3], before.powers[3]);
        EXPECT_EQ(game.unusedFlags, before.unusedFlags);
    }
}

TEST_F(RecordTest, RandomMovesKeepItSound) {
    for (const int scenario : {0, 4, 6}) {  // Treasury, Magic Portals, Bandit Camp
        SCOPED_TRACE(scenarioRow(scenario).name);
        seedRolls(static_cast<std::uint64_t>(scenario) + 1);
        std::mt19937 player(7);
        game = {};
        game.campaign = none;
        game.inventory = {20, 20, 10, 0, 0, 0, 0, 0, 60, 0};
        game.skills = {10, 20, 0, 0, 0, 30, 0};
        buildScenarioBoard(scenario);
        for (int move = 0; move < 250 && !prefs.scenarioOver; ++move) {
            const int col = static_cast<int>(player() % columnCount);
            if (column(col).finished) continue;
            const int drawnBefore = totalDrawn();
            if (Encounter(col, bottomRow, 0)) BoardTurn();
            ASSERT_NO_FATAL_FAILURE(expectSound(drawnBefore));
        }
    }
}

}  // namespace gloomdeck
