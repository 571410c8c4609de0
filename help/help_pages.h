// Drawing the pages of the help.
#pragma once

namespace gloomdeck {

/// Entries that a page steps through: those of its catalogue table, 1 for the others.
int helpEntryCount(int page);

/// Draws a page into the content panel; entry counts for the table pages.
void drawHelpPage(int page, int entry);

}  // namespace gloomdeck
