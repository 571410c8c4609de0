// Pauses by the speed's factor, and the wait for an acknowledgement.
#include "shell/widgets/pacing.h"

#include <array>

#include "platform/clock.h"
#include "platform/input.h"
#include "platform/rounding.h"
#include "prefs/prefs.h"
#include "rules/show.h"

namespace gloomdeck {

namespace {

constexpr std::array<int, speedCount> delayFactors{30, 20, 10, 5, 3, 1, 0};  // tenths
constexpr double longestTitle = 15.0;                                        // seconds
constexpr double afterTitle = 0.001;

void changeSpeed(int step, int announce, const char* changed, const char* atLimit) {
    const int wanted = speedIndex() + step;
    const bool moves = wanted >= 0 && wanted < speedCount;
    if (moves) prefs.GameSpeed = wanted;
    if (announce != 1) return;
    ShowMessage(moves ? changed + std::string(SpeedName(wanted)) + "." : std::string(atLimit), 1);
}

void waitForRelease() {
    while (leftIsHeld(getMouse()) && !programIsEnding()) pausePolling(1);
}

bool acknowledges(const std::string& given, const std::string& wanted) {
    if (given.empty()) return false;
    return wanted.empty() || given == wanted || given == keycode::enter || given == keycode::escape ||
           given == keycode::space;
}

}  // namespace

void Delay(int n) {
    sleep(roundedRatio(std::int64_t{delayFactors[static_cast<std::size_t>(speedIndex())]} * n, 10));
}

void speedUp(int announce) { changeSpeed(1, announce, "Game speed increased to ", "Game speed at maximum."); }

void speedDown(int announce) {
    changeSpeed(-1, announce, "Game speed decreased to ", "Game speed at minimum.");
}

void waitForAck(const std::string& key) {
    const double start = timer();
    const double deadline = key.empty() ? start + longestTitle + afterTitle : noDeadline;
    while (true) {
        if (leftIsHeld(getMouse())) return waitForRelease();
        const std::string given = readKey();
        if (keptCloseRequest(given) || acknowledges(given, key) || programIsEnding()) return;
        pausePolling(1, deadline);
        if (key.empty() && timer() - start > longestTitle) return;
    }
}

}  // namespace gloomdeck
