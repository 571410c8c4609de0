// Drawing the hero: a row for each item, the skills beside them, the powers below the board. Everything here
// reads the records and changes nothing.
#pragma once

namespace gloomdeck {

/// The item's count, in the normal colours for n = 0, else highlighted by the turn's net change.
void drawItemCount(int item, int n);

/// The skill's box: normal for n = 0, a gain above, a loss below.
void drawSkill(int skill, int n);

/// The power's box; the icon is left as it stands unless withIcon.
void drawPower(int power, bool withIcon);

/// The item's icon on its plain cell.
void drawStatsCell(int row);

}  // namespace gloomdeck
