// What the screens keep while the program runs: targeting, the pass's flags, the lock.
#pragma once

#include <cstdint>

namespace gloomdeck {

/// The targeting modes, in which the next board click chooses the target.
namespace target {
inline constexpr int none = 0;
inline constexpr int lightning = 1;
inline constexpr int bomb = 2;
inline constexpr int hand = 3;
}  // namespace target

struct UiState {
    std::int32_t targetMode = target::none;
    bool turnTaken = false;      // this pass's action used a turn, or a click completed
    bool messagePosted = false;  // the action's own message is on the bar
    std::int32_t lockDepth = 0;
};

extern UiState ui;

}  // namespace gloomdeck
