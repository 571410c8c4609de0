// Plays random games on the rules alone, without a picture, and checks the records after every turn: many
// more games than the soak with screens plays in the same time.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

#include "autoplayer/autoplayer.h"
#include "content/campaign_flow.h"
#include "content/campaigns.h"
#include "content/game_flow.h"
#include "content/scenarios.h"
#include "platform/random.h"
#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "rules/board.h"
#include "rules/board_turn.h"
#include "rules/encounter.h"
#include "rules/hero.h"
#include "rules/show_silent.h"
#include "rules/spells.h"
#include "rules/training.h"
#include "tests/support/invariants.h"

namespace gloomdeck::soak {

namespace {

constexpr int longestGame = 2000;  // turns

struct Tally {
    long games = 0;
    long turns = 0;
    long finished = 0;
};

std::mt19937_64 dice;

int below(int n) { return static_cast<int>(dice() % static_cast<std::uint64_t>(n)); }

double nextRoll() { return static_cast<double>(dice() >> 11) * 0x1.0p-53; }

// The screen sells no training above its limit.
void buySomething() {
    const int skill = below(skillCount);
    if (level(skill) <= highestTrainable) buyTraining(skill);
    buyOffer(below(tradeOfferCount));
}

// As the play screen asks for them: only what there is, and no bolt into a finished column.
int useSomething() {
    const int col = below(columnCount);
    const int row = below(rowCount);
    switch (below(6)) {
        case 0: return count(suns) > 0 ? (CastSun(), 1) : 0;
        case 1: return count(shields) > 0 ? (CastShield(), 1) : 0;
        case 2: return count(lightningBolts) > 0 && !column(col).finished ? (CastLightning(1, col), 1) : 0;
        case 3: return count(bombs) > 0 ? (DropBomb(1, 1, col, row), 1) : 0;
        case 4: return count(hands) > 0 ? UseHand(col, row) : 0;
        default: buySomething(); return 0;
    }
}

void playTurn() {
    if (below(3) != 0) {
        const int col = below(columnCount);
        if (!column(col).finished && Encounter(col, bottomRow, 0)) BoardTurn();
    } else if (useSomething()) {
        BoardTurn();
    }
    if (below(20) == 0) RunAutoplayer();
}

void startGame() {
    prefs.campaignChoice = below(campaignCount + 1) - 1;
    prefs.scenarioChoice = below(scenarioTableSize);
    prefs.switches = static_cast<std::uint32_t>(below(1 << switchCount));
    game = {};
    startNewGame();
}

// Empty, or what is wrong.
std::string playGame(Tally& tally) {
    startGame();
    ++tally.games;
    for (int i = 0; i < longestGame && !isGameOver(); ++i) {
        silentTurnLimit = game.turns + below(30);
        playTurn();
        if (std::string why = brokenInvariant(); !why.empty()) return why;
        if (prefs.scenarioOver && !isGameOver()) nextCampaignStage();
    }
    tally.turns += game.turns;
    if (isGameOver()) ++tally.finished;
    return {};
}

}  // namespace

int run(double seconds, std::uint64_t seed) {
    dice.seed(seed);
    useRandomSource(nextRoll);
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    Tally tally;
    std::string why;
    while (why.empty() && std::chrono::steady_clock::now() < end) why = playGame(tally);
    std::printf("%ld games, %ld of them to their end, %ld turns\n", tally.games, tally.finished, tally.turns);
    if (why.empty())
        std::printf("PASS soak.quick\n");
    else
        std::printf("FAIL soak.quick: %s (seed %llu)\n", why.c_str(), static_cast<unsigned long long>(seed));
    return why.empty() ? 0 : 1;
}

}  // namespace gloomdeck::soak

int main(int argc, char** argv) {
    double seconds = 2;
    std::uint64_t seed = std::random_device{}();
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::string_view(argv[i]) == "--seconds") seconds = std::strtod(argv[i + 1], nullptr);
        if (std::string_view(argv[i]) == "--seed") seed = std::strtoull(argv[i + 1], nullptr, 10);
    }
    if (argc % 2 != 1) {
        std::fprintf(stderr, "usage: gloomdeck_quick_soak [--seconds N] [--seed N]\n");
        return 2;
    }
    return gloomdeck::soak::run(seconds, seed);
}
