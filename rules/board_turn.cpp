// The upkeep in its order: message, healing, highlights, time, and the end of a board.
#include "rules/board_turn.h"

#include "prefs/prefs.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/dice.h"
#include "rules/hero.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

void healByToughness() {
    const std::int64_t skill = level(toughness);
    if (skill <= 0 || std::int64_t{count(health)} * 10 >= skill) return;
    if (Roll(100) <= skill) AddItem(health, 1);
}

// True when the highlight has just run out.
bool countDown(std::int32_t& highlightTurns) { return highlightTurns > 0 && --highlightTurns == 0; }

void fadeHighlights() {
    for (int item = 0; item < itemCount; ++item) {
        itemType(item).turnChange = 0;
        if (countDown(itemType(item).highlightTurns)) drawItemCount(item, 0);
    }
    for (int skill = 0; skill < skillCount; ++skill)
        if (countDown(skillType(skill).highlightTurns)) ChangeSkill(skill, 0);
}

void passTime() {
    holdScreen();
    PowersTick();
    addTo(game.turns, 1);
    DrawDayDisplay();
    releaseScreen();
}

}  // namespace

void BoardTurn() {
    if (prefs.scenarioOver) return;
    scrollMessages();
    healByToughness();
    fadeHighlights();
    passTime();
    if (!AllColumnsFinished()) return;
    prefs.scenarioOver = 1;
    showScenarioEnd();
}

}  // namespace gloomdeck
