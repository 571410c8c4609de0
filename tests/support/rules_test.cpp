#include "tests/support/rules_test.h"

#include <deque>
#include <random>
#include <stdexcept>

#include "platform/random.h"

namespace gloomdeck {

namespace {

constexpr int dungeon = 3;
std::deque<FedRoll> fed;
int missing = 0;
std::mt19937_64 stream;

double nextFed() {
    constexpr int mostMissing = 10000;
    if (fed.empty() && ++missing > mostMissing)
        throw std::runtime_error("a loop waits for a roll that nobody feeds");
    if (fed.empty()) return 0.0;
    const FedRoll roll = fed.front();
    fed.pop_front();
    // So near to the next value that a die of other sides shows another one.
    return (roll.value - 1e-6) / roll.sides;
}

}  // namespace

void rolls(const std::vector<FedRoll>& list) {
    fed.insert(fed.end(), list.begin(), list.end());
    useRandomSource(nextFed);
}

void seedRolls(std::uint64_t seed) {
    stream.seed(seed);
    useRandomSource([] { return static_cast<double>(stream() >> 11) * 0x1.0p-53; });
}

int leftoverRolls() { return static_cast<int>(fed.size()); }

void forgetRolls() {
    useRandomSource(nullptr);
    fed.clear();
    missing = 0;
}

void fillBoard(int code) {
    for (int i = 0; i < columnCount * rowCount; ++i) cell(i % columnCount, i / columnCount) = code;
}

void makeEmptyBoard() {
    for (int col = 0; col < columnCount; ++col) column(col) = {dungeon, 0, {}, 0, 0};
    fillBoard(enc::Empty);
    game.campaign = none;
}

void RulesTest::SetUp() {
    game = {};
    prefs = {};
    resetCatalogue();
    forgetRolls();
    makeEmptyBoard();
    prefs.GameSpeed = speedCount - 1;
    rolls({});
}

void RulesTest::TearDown() {
    EXPECT_EQ(leftoverRolls(), 0) << "fed rolls that nobody drew";
    EXPECT_EQ(missing, 0) << "draws beyond the fed rolls";
    forgetRolls();
}

}  // namespace gloomdeck
