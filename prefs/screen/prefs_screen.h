// The preferences screen.
#pragma once

#include <string_view>

namespace gloomdeck {

/// Shows the screen until the player leaves it; changes take effect at once. The caller draws the play screen
/// again.
void RunPreferencesScreen();

/// "On " or "Off", three characters each.
std::string_view OnOffText(int on);

void DrawSwitchRow(int row);
void DrawSpeedRow();

}  // namespace gloomdeck
