// The seam under the frame buffer: the few operations that differ between a desktop window, a script and a
// browser. One implementation is chosen at link time (host_sdl.cpp, host_script.cpp, host_web.cpp);
// everything above is the same code everywhere.
#pragma once

#include <string>

#include "platform/colour.h"
#include "platform/geometry.h"
#include "platform/input_queue.h"

namespace gloomdeck::host {

/// Opens the window for a frame of that size, with the title set last. Where none can be opened the program
/// ends with a line on standard error and exit code 1.
void open(int width, int height);

/// Titles the window; remembered when it is not open yet.
void setTitle(const std::string& title);

/// Says a text that the picture shows anyhow, to readers who do not see it; may do nothing.
void tell(const std::string& text);

/// Shows a whole frame (rows top to bottom, no gaps, the size given to open) at once; only those rows differ
/// from the frame shown before.
void present(const Colour* pixels, Rows changed);

/// Seconds between two pictures of the display: no present is made sooner after the last.
double framePeriod();

/// Waits for the display's next vertical blank where one is known and worth waiting for.
void waitForRetrace();

/// Moves what has arrived (pointer, button, keys, close request, signals) into the queue, repaints what was
/// uncovered, and returns at once.
void pump(InputQueue& queue);

/// Sleeps for about that many milliseconds (0 to 100); a request to end the program cuts it short.
void sleep(int milliseconds);

/// Waits until input arrives, or for about that many seconds; may return early, and up to two seconds late
/// where nothing has come in for long.
void waitForInput(double seconds);

/// Seconds on a monotonic clock whose start differs from run to run.
double seconds();

/// The folder of the running program, without a trailing separator.
std::string programFolder();

/// Names what must happen when the window may be gone for good: the window system takes the program down
/// without asking, or a page is hidden. A program that lives on after all goes on, and is asked again. The
/// call comes between two calls of this seam or out of a wait in it, and must not wait itself.
void onLost(void (*save)());

/// Closes the window and ends the program.
[[noreturn]] void end(int exitCode);

}  // namespace gloomdeck::host
