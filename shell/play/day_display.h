// The turn counter's picture: four turns make a day.
#pragma once

namespace gloomdeck {

/// Draws the time of day and the day's number above the stats column.
void DrawDayDisplay();

}  // namespace gloomdeck
