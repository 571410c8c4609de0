// Games that nobody looks at.
#pragma once

namespace gloomdeck {

/// Turns after which the silent answer interrupts the autoplayer: a Ghost between two free cells can be
/// chased for ever.
extern int silentTurnLimit;

}  // namespace gloomdeck
