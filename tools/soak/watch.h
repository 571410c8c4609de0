// What is looked at after every move: promises of the rules, and what has been played so far.
#pragma once

#include <stdexcept>

namespace gloomdeck::soak {

/// Thrown out of the program under test.
struct Broken : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Tally {
    long events = 0;  // of input
    long moves = 0;
    long games = 0;
    long starts = 0;
};

extern Tally tally;

/// Forgets what the board looked like: the program starts anew.
void watchFromStart();

/// Looks at the records; at rest the screen must be unlocked too. Throws Broken.
void watch(bool atRest);

}  // namespace gloomdeck::soak
