// The score of a cleared board and its line.
#include "prefs/score.h"

#include <limits>
#include <vector>

#include "shell/palette.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

class ScoreTest : public GameTest {};

constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();

}  // namespace

TEST_F(ScoreTest, IsTheTotalPerThousandTurnsWithHalvesToEven) {
    struct Case {
        int owned;
        int turns;
        int score;
    };
    const std::vector<Case> cases{{7, 20, 350}, {1, 3, 333}, {2, 3, 667}, {1, 2000, 0}, {3, 2000, 2},
                                  {5, 2000, 2}, {9, 0, 0},   {-3, 10, 0}, {9, -4, 0},   {most, 1, most}};
    for (const Case& c : cases) {
        count(health) = c.owned;
        game.turns = c.turns;
        EXPECT_EQ(ComputeScore(), c.score) << c.owned << " in " << c.turns;
    }
    for (std::int32_t& n : game.inventory) n = 1;
    count(health) = -1;
    game.turns = 1000;
    EXPECT_EQ(ComputeScore(), 7) << "eight items less one health";
}

TEST_F(ScoreTest, TheLineCarriesItsStandingOverTheCounters) {
    count(gold) = 7;
    game.turns = 20;
    for (const auto& [standing, line] : {std::pair{-1, "Score: 350 "},
                                         {0, "Score: 350 - Best! "},
                                         {5, "Score: 350 - Above avg! "},
                                         {-2, "Score: 350 - Above avg! "}}) {
        game.scoreStanding = standing;
        ShowScoreLine();
        EXPECT_TRUE(textStandsAt(16, 29, line, colour::text)) << line;
        EXPECT_EQ(pixelAt(8, 27), colour::panel);
        EXPECT_EQ(pixelAt(231, 38), colour::panel);
    }
    EXPECT_NE(pixelAt(7, 27), colour::panel);
    EXPECT_NE(pixelAt(232, 38), colour::panel);
    EXPECT_NE(pixelAt(8, 26), colour::panel);
    EXPECT_NE(pixelAt(231, 39), colour::panel);
}

}  // namespace gloomdeck
