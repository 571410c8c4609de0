// What the desktop window receives, as the input queue takes it.
#pragma once

#include "platform/input_queue.h"

namespace gloomdeck::host {

/// Moves every event that has arrived into the queue and repaints what was uncovered or resized. Answers true
/// when the window system itself wants the program to end.
bool takeWindowEvents(InputQueue& queue);

/// Waits for the next event, or for that many milliseconds; the event stays for takeWindowEvents.
void awaitWindowEvent(int milliseconds);

}  // namespace gloomdeck::host
