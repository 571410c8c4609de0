// The desktop window: opening it, and showing the frame in it whatever its size.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "platform/colour.h"
#include "platform/geometry.h"
#include "platform/scaling.h"

namespace gloomdeck::host {

/// Opens the window for frames of that size; false when there is no display to open it on.
bool openDesktopWindow(Extent frame, const std::string& title);
void closeDesktopWindow();

void titleDesktopWindow(const std::string& title);

/// Shows a frame that differs from the one before it in those rows; its pixels stay there for repaints.
void showFrame(const Colour* pixels, std::span<const Rows> changed);

/// Shows the last frame (black before the first) and the black around it again.
void repaintWindow();

/// The frame's pixel under a place in the window, as pointer events give it; none beside the picture.
std::optional<Point> framePixelUnder(Point place);

/// The pointer's place in the window by its place on the screen; none where the desktop does not tell that.
/// What has happened until then is among the events that wait.
std::optional<Point> askPointerPlace();

/// Seconds between two pictures of the display that the window is on; asked again after noteDisplayChange.
double displayPeriod();
void noteDisplayChange();

}  // namespace gloomdeck::host
