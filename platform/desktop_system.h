// The seam to the system around a desktop program: how it was started, its clock, and how it is asked to end.
// Each kind of system has one source behind it, chosen at link time.
#pragma once

#include <atomic>
#include <string>

namespace gloomdeck::host::desktop {

/// The folder of the path by which the program was started, without a separator at its end: not of what a
/// link there leads to, for the installed program is started through a link in each player's own folder.
std::string startingFolder();

/// From now on the flag is set when the system asks the program to end, be it in the middle of anything.
/// Where the process may be gone as soon as it has answered, save is called before that.
void watchForEnd(std::atomic<bool>& asked, void (*save)());

/// Seconds of a clock that is never set.
double seconds();

/// Ends early when the flag is set meanwhile.
void sleep(int milliseconds, const std::atomic<bool>& asked);

/// Which of its drivers the window's library is to try, and as what the window is known to the desktop.
void chooseWindowSystem();

/// Says a line where somebody may see it.
void say(const std::string& line);

/// Says why the program ends before it has a window.
void sayWithoutWindow(const std::string& line);

/// Ends the process, and nothing else is done.
[[noreturn]] void endAtOnce(int exitCode);

}  // namespace gloomdeck::host::desktop
