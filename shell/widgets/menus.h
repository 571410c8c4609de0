// The two menus: the tabs of the game selection and the page list of the help.
#pragma once

#include <span>
#include <string_view>

namespace gloomdeck {

/// The item of a menu or list that a step of one leads to, around its ends: index may be -1 to length.
constexpr int aroundEnds(int index, int length) { return (index + length) % length; }

/// "Campaign" (0) and "Scenario" (1), side by side.
void drawTabs(int selected);

/// Up to nine items below each other.
void drawHelpMenu(std::span<const std::string_view> items, int selected);

}  // namespace gloomdeck
