// The seam under the frame buffer: the few operations that differ between a desktop window, a script and a
// browser. One implementation is chosen at link time (host_sdl.cpp, host_script.cpp, host_web.cpp);
// everything above is the same code everywhere.
#pragma once

#include <span>
#include <string>

#include "platform/colour.h"
#include "platform/geometry.h"
#include "platform/input_queue.h"

namespace gloomdeck::host {

/// Opens a black window for frames of that size, with the title set last. Where none can be opened the
/// program ends with a line on standard error and exit code 1.
void open(int width, int height);

/// Titles the window; remembered when it is not open yet.
void setTitle(const std::string& title);

/// Says a text that the picture shows anyhow, to readers who do not see it; may do nothing.
void tell(const std::string& text);

/// Shows a whole frame (rows top to bottom, no gaps, the size given to open) at once. It differs from the one
/// shown before in those stretches of rows alone, of which there is one at least, from the top down. The
/// pixels stay as they are until the next call, for repaints.
void present(const Colour* pixels, std::span<const Rows> changed);

/// Seconds between two pictures of the display: no present is made sooner after the last.
double framePeriod();

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

/// Tells one line to whoever started the program: on standard error, or on the browser's console.
void warn(const std::string& line);

/// Closes the window and ends the program.
[[noreturn]] void end(int exitCode);

}  // namespace gloomdeck::host
