// The host of tests, tools and benchmarks: no window, a virtual clock, input from a script, a readable frame.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/colour.h"
#include "platform/input_queue.h"

namespace gloomdeck::script {

/// Thrown out of the program when it ends itself.
struct ProgramEnded {
    int exitCode = 0;
};

/// Thrown out of the program when it waits for input and the script has none left.
struct RanDry : std::runtime_error {
    RanDry() : std::runtime_error("the script ran dry: the program still waits for input") {}
};

/// Feeds the queue; false when it has nothing more to give.
using Feeder = std::function<bool(InputQueue&)>;

/// Called when the program waits for input with nothing queued.
void feedWhenIdle(Feeder feeder);

/// Called at every pause of an animation, before it.
void feedWhenPausing(Feeder feeder);

/// Called at every poll of the program: what a signal or a desktop does at any moment.
void feedAtPoll(Feeder feeder);

/// Moves the virtual clock.
void advanceClock(double seconds);

void setFolder(const std::string& folder);

/// How long the display shows a picture; 0 (as at the start) takes every present.
void setFramePeriod(double seconds);

/// What a display shows that takes only the rows that presents name (empty before the window opens), how many
/// presents there were, and the window's title.
const std::vector<Colour>& shownFrame();
long presentCount();
const std::string& windowTitle();

/// What a desktop would have on standard error.
const std::vector<std::string>& warnings();

/// What was told last to readers who do not see the picture.
const std::string& toldText();

/// Milliseconds that animations have paused.
long sleptMilliseconds();

/// Calls what the game asked for in case that it loses its window.
void loseWindow();

/// As at the start of a program: clock at a fixed time, no feeders, no window.
void reset();

}  // namespace gloomdeck::script
