// What encounters cost: locks, torches, damage, theft. Each answers 1 when it is paid or spared and 0 when it
// is refused: nothing is spent then and the message bar says why.
#pragma once

namespace gloomdeck {

/// Opens a lock of n keys: picked for free, with keys, or picked until it gives way, each extra try a turn of
/// the powers and of the turn counter.
int OpenLock(int n);

int UseTorches(int n);

/// Hits the hero. A required one is refused unless health is above the threshold. Deflection and toughness
/// reduce the amount; health has no lower bound.
int TakeDamage(int amount, int required, int threshold);

/// Takes one item, health included, or two of the same; protection by skill counts when isProtected is 1.
int Steal(int isProtected);

}  // namespace gloomdeck
