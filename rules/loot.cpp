// What containers, scrolls and books roll for.
#include "rules/loot.h"

#include <string>

#include "rules/catalogue.h"
#include "rules/dice.h"
#include "rules/hero.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

void takeTorchesOrKeys(int n) {
    const int r = Roll(100);
    AddItem(r <= 50 ? torches : keys, n);
}

Item spellOn(int roll) {
    switch (roll) {
        case 1:
        case 6: return shields;
        case 2:
        case 3: return lightningBolts;
        case 5: return bombs;
        default: return suns;
    }
}

}  // namespace

int rollDice(int times, int sides) {
    int sum = 0;
    for (int i = 0; i < times; ++i) sum += Roll(sides);
    return sum;
}

void takeBackpackContents() {
    const int r = Roll(100);
    if (r <= 50) return takeTorchesOrKeys(1);
    if (r <= 70) return takeTorchesOrKeys(3);
    AddItem(keys, 1);
    AddItem(torches, 1);
}

void takeScrollContents() { AddItem(spellOn(Roll(7)), 1); }

void takeChestContents() {
    AddItem(gold, Roll(10));
    takeBackpackContents();
    takeScrollContents();
    AddItem(health, Roll(6));
}

void takeLockedChestContents() {
    AddItem(gold, Roll(10));
    AddItem(gold, Roll(10));
    takeBackpackContents();
    takeScrollContents();
    AddItem(health, rollDice(3, 6));
}

void readBook() {
    const int skill = Roll(skillCount) - 1;
    const int first = Roll(100);
    const int second = Roll(100);
    const int gain = 1 + (first <= 33 ? 1 : 0) + (second <= 16 ? 1 : 0);
    ShowMessage(" +" + std::to_string(gain) + "% " + std::string(skillType(skill).name), 1);
    ChangeSkill(skill, gain);
}

}  // namespace gloomdeck
