// A rule for every code, and what follows when it took place.
#include "rules/encounter.h"

#include "rules/board.h"
#include "rules/catalogue.h"
#include "rules/clear_cell.h"
#include "rules/costs.h"
#include "rules/dice.h"
#include "rules/hero.h"
#include "rules/loot.h"
#include "rules/monsters.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

struct Meeting {
    int col;
    int row;
    bool stayPut;  // the column does not advance
};

int gain(int item, int n) {
    AddItem(item, n);
    return 1;
}

// A required hit is refused by a hero who is too weak for it.
int takeHit(enc::Code code, int required) {
    const int row = encounterType(code).monster;
    return TakeDamage(MonsterDamage(row), required, monsterType(row).healthThreshold);
}

int fight(enc::Code code) { return takeHit(code, 1); }

int springTrap() { return takeHit(enc::Trap, 0); }

int meetGhost(Meeting& m) {
    if (!ghostFlees(m.col, m.row)) return fight(enc::Ghost);
    m.stayPut = true;
    return 1;
}

int meetFilth(Meeting& m) {
    if (!fight(enc::OozingFilth)) return 0;
    if (!isActive(stasis)) Steal(0);
    m.stayPut = filthSpreads(m.col, m.row) || m.stayPut;
    return 1;
}

int meetDemon(Meeting& m) {
    if (!demonTeleports(m.col, m.row)) return fight(enc::Demon);
    m.stayPut = true;
    return 1;
}

int meetThief() { return isActive(stasis) ? 1 : Steal(1); }

int meetMasterThief() {
    if (isActive(stasis)) return 1;
    int refused = 0;
    for (int theft = 0; theft < 3; ++theft)
        if (!Steal(1)) ++refused;
    return refused == 0 ? 1 : 0;
}

int takeChest() {
    takeChestContents();
    return 1;
}

int takeLockedChest() {
    if (!OpenLock(1)) return 0;
    takeLockedChestContents();
    return 1;
}

int learnFromBook() {
    readBook();
    return 1;
}

int smellFlower() {
    const int turns = Roll(6) + 2;
    ChangePower(magicSight, turns);
    return gain(health, Roll(2));
}

int unpackBackpack() {
    takeBackpackContents();
    return 1;
}

int readScroll() {
    takeScrollContents();
    return 1;
}

int finishColumn(int col) {
    column(col).finished = 1;
    return 1;
}

int applyRule(enc::Code code, Meeting& m) {
    switch (code) {
        case enc::Gold: return gain(gold, Roll(10));
        case enc::Door: return OpenLock(1);
        case enc::Skeleton: return fight(code);
        case enc::Trap: return springTrap();
        case enc::Darkness: return UseTorches(1);
        case enc::Backpack: return unpackBackpack();
        case enc::Scroll: return readScroll();
        case enc::Ghost: return meetGhost(m);
        case enc::Empty: return 1;
        case enc::TheEnd: return finishColumn(m.col);
        case enc::Chest: return takeChest();
        case enc::Fruit: return gain(health, Roll(6));
        case enc::Thief: return meetThief();
        case enc::OozingFilth: return meetFilth(m);
        case enc::SkeletonKing: return fight(code);
        case enc::Demon: return meetDemon(m);
        case enc::DoubleDoor: return OpenLock(2);
        case enc::LockedChest: return takeLockedChest();
        case enc::Meat: return gain(health, rollDice(3, 6));
        case enc::Cave: return UseTorches(2);
        case enc::MasterThief: return meetMasterThief();
        case enc::Book: return learnFromBook();
        case enc::HypnoEye: return fight(code);
        case enc::Flower: return smellFlower();
    }
    return 1;  // a code that no tile has comes from a damaged file: it is cleared like Empty
}

}  // namespace

int Encounter(int col, int row, int stayPut) {
    Meeting m{.col = col, .row = row, .stayPut = stayPut != 0};
    if (!applyRule(static_cast<enc::Code>(cell(col, row)), m)) return 0;
    if (ClearCell(col, row) && !m.stayPut) ShiftColumn(col);
    drawColumn(col);
    return 1;
}

}  // namespace gloomdeck
