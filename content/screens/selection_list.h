// The list of campaigns or scenarios on the selection screen.
#pragma once

namespace gloomdeck {

/// The tabs of the selection screen.
namespace selection_tab {
inline constexpr int campaigns = 0;
inline constexpr int scenarios = 1;
}  // namespace selection_tab

/// Entries of a tab's list.
int selectionListLength(int tab);

/// Draws the list of the tab that the tabs widget has selected, with the list widget's selected row marked.
void drawSelectionList();

}  // namespace gloomdeck
