// Random numbers fed by tests.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace gloomdeck {

/// One roll to come: a die of so many sides shows a value.
struct FedRoll {
    int sides;
    int value;
};

/// Appends rolls; from now on running out of them fails the test (each further roll shows 1).
void rolls(std::initializer_list<FedRoll> list);
void rolls(const std::vector<FedRoll>& list);

/// Random numbers from a seeded stream instead.
void seedRolls(std::uint64_t seed);

/// Rolls that nobody drew, and draws that found none.
int leftoverRolls();
int missingRolls();

/// Back to the real source, nothing fed.
void resetRolls();

}  // namespace gloomdeck
