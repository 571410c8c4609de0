#include "platform/rounding.h"

#include <gtest/gtest.h>

#include <cmath>

namespace gloomdeck {

TEST(Rounding, HalvesGoToTheEvenNeighbourOnBothSidesOfZero) {
    for (int numerator = -40; numerator <= 40; ++numerator)
        for (int denominator = 1; denominator <= 10; ++denominator)
            EXPECT_EQ(roundedRatio(numerator, denominator), std::nearbyint(1.0 * numerator / denominator))
                << numerator << " / " << denominator;
}

}  // namespace gloomdeck
