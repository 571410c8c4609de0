// The pages of the help: one row for each, and drawing it.
#pragma once

#include <array>
#include <string_view>

namespace gloomdeck {

/// The pages in menu order.
namespace help_page {
enum Id { basic, keyboard, encounters, stats, skills, powers, autoplayer, about };
}  // namespace help_page
inline constexpr int helpPageCount = 8;

extern const std::array<std::string_view, helpPageCount> helpPageLabels;

/// Entries that a page (0 to 7) steps through: those of its catalogue table, 1 for the others.
int helpEntryCount(int page);

/// Draws a page into the content panel; entry counts for the table pages.
void drawHelpPage(int page, int entry);

}  // namespace gloomdeck
