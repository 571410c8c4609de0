// The fixture of every test: all records, the mutable tables and the rolls start afresh.
#pragma once
#include <gtest/gtest.h>

#include <vector>

#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/game_state.h"

namespace gloomdeck {

/// One roll to come: a die of so many sides shows a value.
struct FedRoll {
    int sides;
    int value;
};

/// Appends rolls; from now on running out of them fails the test (each further roll shows 1).
void rolls(const std::vector<FedRoll>& list);
int leftoverRolls();
void seedRolls(std::uint64_t seed);  ///< from a seeded stream instead
void forgetRolls();                  ///< and the source of every program again

void fillBoard(int code);

/// A board of Empty cells in Dungeon columns (deck 60), as far from their end as can be.
void makeEmptyBoard();

/// Records only: the speed "Mega fast", an empty board. Fed rolls that are left over and draws without a fed
/// roll fail the test.
class RulesTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
    static std::int32_t& board(int col, int row) { return cell(col, row); }
};

}  // namespace gloomdeck
