// A roll is one draw of the platform's random numbers.
#include "rules/dice.h"

#include <cmath>

#include "platform/random.h"

namespace gloomdeck {

int Roll(int n) { return n == 0 ? 0 : static_cast<int>(std::floor(rnd() * n)) + 1; }

}  // namespace gloomdeck
