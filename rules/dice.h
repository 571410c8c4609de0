// The one random-integer operation of the rules.
#pragma once

namespace gloomdeck {

/// An integer from 1 to n, each as likely as the others; 0 without a draw when n is 0.
int Roll(int n);

}  // namespace gloomdeck
