// What goes on during a pause: the frame is shown and input is let in.
#include "platform/clock.h"

#include <algorithm>
#include <cmath>

#include "platform/frame.h"
#include "platform/host.h"
#include "platform/input.h"

namespace gloomdeck {

namespace {

constexpr int longPause = 100;  // milliseconds; from here on a key ends a pause
constexpr int pauseStep = 50;
constexpr double alertFor = 0.25;   // seconds after input: a release or a return takes several passes
constexpr double longestWait = 60;  // seconds

long seenInput = 0;
double lastInput = -1.0e9;

int millisecondsUntilDue() { return static_cast<int>(std::ceil(secondsUntilDue() * 1000.0)); }

// The picture before a pause is shown, in the middle of the pause where the display is not ready sooner.
void pauseShowing(int milliseconds) {
    if (inputQueue().ending) return;
    showFrameWhenDue();
    int left = milliseconds;
    if (frameWaits() && millisecondsUntilDue() < left) {
        const int before = millisecondsUntilDue();
        host::sleep(before);
        left -= before;
        showFrameNow();
    }
    host::sleep(left);
    host::pump(inputQueue());
}

bool inputIsRecent() {
    InputQueue& queue = inputQueue();
    if (queue.received != seenInput || inputWaits(queue)) {
        seenInput = queue.received;
        lastInput = timer();
    }
    return timer() - lastInput < alertFor;
}

}  // namespace

double timer() { return host::seconds(); }

void sleep(int milliseconds) {
    notePause(inputQueue());
    host::pump(inputQueue());
    if (milliseconds <= 0) return showFrameWhenDue();
    int left = milliseconds;
    if (milliseconds >= longPause)
        for (; left > pauseStep; left -= pauseStep) {
            if (keyWaiting()) return;
            pauseShowing(pauseStep);
        }
    pauseShowing(left);
}

void pausePolling(int stepMilliseconds, double deadline) {
    host::pump(inputQueue());
    if (inputIsRecent()) return pauseShowing(stepMilliseconds);
    showFrameNow();
    const double wait = std::min(deadline - timer(), longestWait);
    if (wait > 0) host::waitForInput(wait);
}

void resetClock() {
    seenInput = 0;
    lastInput = -1.0e9;
}

}  // namespace gloomdeck
