// Time: the clock, the pauses of animations, and the pause of polling loops.
#pragma once

namespace gloomdeck {

/// Seconds on a monotonic clock with at least millisecond resolution; its start differs from run to run.
double timer();

/// Returns after about that many milliseconds; 0 (or less) at once. From 100 on it runs in steps of 50 while
/// more than 50 remain, and ends before a step when a key waits. The window stays alive meanwhile.
void sleep(int milliseconds);

/// A deadline that never comes.
inline constexpr double noDeadline = 1.0e18;

/// The pause at the end of a polling loop's pass: the step given (milliseconds) while there is input and for
/// a quarter second after it; then it waits for input, at most until the deadline (on the clock of timer).
void pausePolling(int stepMilliseconds, double deadline = noDeadline);

/// Forgets when input came last (tests start from here).
void resetClock();

}  // namespace gloomdeck
