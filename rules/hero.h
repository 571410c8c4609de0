// Every change of the hero: applied to the record, drawn in the stats column and highlighted there.
#pragma once

namespace gloomdeck {

// The limits of skills, in percent: what is above highestTrainable cannot be trained any more.
inline constexpr int highestSkill = 95;
inline constexpr int trainingStep = 5;
inline constexpr int highestTrainable = highestSkill - trainingStep;

/// The item's count and its net change of this turn grow by n; n = 0 only redraws the row.
void AddItem(int item, int n);

/// The skill grows by n and is clamped to at most highestSkill.
void ChangeSkill(int skill, int n);

/// The power's turns grow by n. The icon is drawn when forced or when the power was at 0; a magic sight that
/// begins or ends redraws the columns with eyes unless noEyeRefresh.
void ChangePower(int power, int n, int forceIcon = 0, int noEyeRefresh = 0);

/// Every active power loses a turn.
void PowersTick();

}  // namespace gloomdeck
