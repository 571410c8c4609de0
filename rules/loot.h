// What containers give.
#pragma once

namespace gloomdeck {

/// The sum of so many rolls.
int rollDice(int times, int sides);

void takeBackpackContents();
void takeScrollContents();
void takeChestContents();
void takeLockedChestContents();

/// Teaches 1 to 3 percent of a random skill and says so.
void readBook();

}  // namespace gloomdeck
