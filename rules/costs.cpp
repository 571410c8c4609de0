// What locks, darkness, hits and thieves take, and what skills and powers spare.
#include "rules/costs.h"

#include <string>

#include "platform/rounding.h"
#include "rules/board.h"
#include "rules/dice.h"
#include "rules/hero.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

int refuse(const std::string& why) {
    ShowMessage(why, 0);
    return 0;
}

int succeed(const std::string& how) {
    ShowMessage(how, 1);
    return 1;
}

int refuseFor(int n, const std::string& what, const std::string& plural) {
    return refuse(n == 1 ? "1 " + what + " needed." : std::to_string(n) + " " + plural + " needed.");
}

bool pickSucceeds(int n) {
    const int r = Roll(100);
    return r * n <= level(lockpicking);
}

int pickUntilOpen(int n) {
    int tries = 1;
    do {
        ++tries;
        PowersTick();
    } while (!pickSucceeds(n));
    addTo(game.turns, tries - 1);
    return succeed("Picked lock in " + std::to_string(tries) + " tries.");
}

// What deflection leaves of a hit; below 1 there is nothing left to take.
int deflected(int amount, int required, int threshold) {
    const int third = roundedRatio(amount, 3);
    const int left = required && third < 1 ? 1 : third;
    if (left < 1)
        ShowMessage("Deflection stops all damage.", 1);
    else if (!required || count(health) > threshold)
        ShowMessage("Deflection reduces damage.", 1);
    return left;
}

int toughened(int amount) {
    const int r = Roll(100);
    if (r > level(toughness)) return amount;
    const int stop = roundedRatio(std::int64_t{level(toughness)} - r + 10, 10);
    const int left = amount - stop;
    ShowMessage(
        left < 1 ? "Toughness stops all loss." : "Toughness stops " + std::to_string(stop) + " points.", 1);
    return left;
}

int drawOwnedItem() {
    while (true) {
        const int item = Roll(itemCount) - 1;
        if (count(item) >= 1) return item;
    }
}

}  // namespace

int OpenLock(int n) {
    if (pickSucceeds(n)) return succeed("You picked the lock!");
    if (count(keys) >= n) {
        AddItem(keys, -n);
        return 1;
    }
    if (level(lockpicking) >= 1 && level(lockpicking) >= n) return pickUntilOpen(n);
    return refuseFor(n, "Key", "Keys");
}

int UseTorches(int n) {
    if (isActive(magicSight)) return 1;
    if (count(torches) < n) return refuseFor(n, "Torch", "Torches");
    AddItem(torches, -n);
    return 1;
}

int TakeDamage(int amount, int required, int threshold) {
    if (isActive(deflection)) amount = deflected(amount, required, threshold);
    if (amount < 1 && isActive(deflection)) return 1;
    if (required && count(health) <= threshold)
        return refuse("Need health above " + std::to_string(threshold) + ".");
    amount = toughened(amount);
    if (amount >= 1) AddItem(health, -amount);
    return 1;
}

int Steal(int isProtected) {
    if (TotalStats() < 1) return refuse("Need total stats above 0.");
    if (isProtected) {
        const int r = Roll(100);
        if (r <= level(thiefProtection)) return succeed("The thief ignores you.");
    }
    const int item = drawOwnedItem();
    AddItem(item, -1);
    if (count(item) > 0 && Roll(100) < 34) AddItem(item, -1);
    return 1;
}

}  // namespace gloomdeck
