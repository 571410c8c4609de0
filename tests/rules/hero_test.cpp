// Changes of the hero: the record, the highlights and what a sight that comes or goes redraws.
#include "rules/hero.h"

#include "rules/stats_column.h"
#include "shell/board_view.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "shell/tiles.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

class HeroTest : public GameTest {};
class SightTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        board(1, 2) = enc::HypnoEye;
        board(4, 5) = enc::HypnoEye;
        board(6, 6) = enc::HypnoEye;  // hides nothing, so no refresh is for it
        board(1, 6) = enc::Gold;
    }

    static bool goldIsShown() {
        return pixelAt(boardGrid.corner(1, 6).x + 29, boardGrid.corner(1, 6).y + 16) ==
               flatColour(tile::gold);
    }
};

Colour countBox(int item) { return pixelAt(statsGrid.x + 34, statsGrid.corner(0, item).y); }
Colour skillBox(int row) { return pixelAt(397, statsGrid.corner(0, row).y); }

}  // namespace

TEST_F(HeroTest, ARowIsColouredByTheNetChangeOfTheTurn) {
    AddItem(gold, 3);
    EXPECT_EQ(countBox(gold), colour::yellow);
    AddItem(gold, -3);
    EXPECT_EQ(countBox(gold), colour::yellow);
    AddItem(gold, -1);
    EXPECT_EQ(countBox(gold), colour::loss);
    EXPECT_EQ(count(gold), -1);
    EXPECT_EQ(itemType(gold).turnChange, -1);
    EXPECT_EQ(itemType(gold).highlightTurns, 2);
    EXPECT_EQ(itemType(keys).highlightTurns, -1);
}

TEST_F(HeroTest, AChangeOfNothingOnlyRedrawsTheRow) {
    AddItem(suns, 2);
    itemType(suns).highlightTurns = 1;
    AddItem(suns, 0);
    EXPECT_EQ(countBox(suns), colour::slate);
    EXPECT_EQ(itemType(suns).highlightTurns, 1);
    EXPECT_EQ(itemType(suns).turnChange, 2);
}

TEST_F(HeroTest, ASkillIsClampedAndColouredByItsChange) {
    level(toughness) = 90;
    ChangeSkill(toughness, 10);
    EXPECT_EQ(level(toughness), 95);
    EXPECT_EQ(skillBox(health), colour::yellow);
    EXPECT_EQ(skillType(toughness).highlightTurns, 2);
    ChangeSkill(toughness, -1);
    EXPECT_EQ(level(toughness), 94);
    EXPECT_EQ(skillBox(health), colour::loss);
    skillType(toughness).highlightTurns = 1;
    ChangeSkill(toughness, 0);
    EXPECT_EQ(skillBox(health), colour::slate);
    EXPECT_EQ(skillType(toughness).highlightTurns, 1);
}

TEST_F(HeroTest, TheHeroTakesTurnsOffActivePowersOnly) {
    game.powers = {0, 3, -2, 7};
    PowersTick();
    EXPECT_EQ(game.powers, (std::array<std::int32_t, 4>{0, 2, -2, 7}));
}

TEST_F(SightTest, BeginningShowsWhatTheEyesHidAtOnce) {
    rolls({{30, 1}, {30, 1}, {30, 1}});
    drawBoard();
    EXPECT_FALSE(goldIsShown());
    ChangePower(magicSight, 3);
    EXPECT_TRUE(goldIsShown());
}

TEST_F(SightTest, RunningOutHidesItAgainColumnByColumnFromTheLeft) {
    turnsLeft(magicSight) = 2;
    drawBoard();
    PowersTick();
    EXPECT_TRUE(goldIsShown());
    rolls({{30, 1}, {30, 30}});
    PowersTick();
    EXPECT_FALSE(goldIsShown());
    EXPECT_EQ(pixelAt(boardGrid.corner(1, 0).x + 2, boardGrid.area().y2), colour::brown);
    EXPECT_EQ(pixelAt(boardGrid.corner(4, 0).x + 30, boardGrid.area().y2), colour::brown);
}

TEST_F(SightTest, OtherChangesLeaveTheBoardAlone) {
    ChangePower(stasis, 4);
    ChangePower(magicSight, 4, 0, 1);
    ChangePower(magicSight, 4);
    ChangePower(magicSight, 0, 1, 1);
    EXPECT_EQ(turnsLeft(magicSight), 8);
    EXPECT_FALSE(goldIsShown()) << "the board has not been drawn at all";
    ChangePower(magicSight, 0, 1);
    EXPECT_TRUE(goldIsShown());
}

}  // namespace gloomdeck
