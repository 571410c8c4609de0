// The board: queries on cells, and dealing columns. Nothing here draws.
#pragma once

#include <cstdint>

#include "rules/game_state.h"

namespace gloomdeck {

/// True when col is 0 to 6 and row is 0 to 6.
bool InBounds(int col, int row);

/// True when the cell lies beyond the column's The End.
bool IsPastEnd(int col, int row);

/// Whether magic sight sees through an eye, so that none is found while it lasts.
enum class Sight { counts, ignored };

/// The highest Hypno Eye of rows 0 to lastRow, or -1.
int highestEye(int col, int lastRow, Sight sight);

/// The eye that hides what lies below it: highestEye above the bottom row, and magic sight counts.
int FirstEyeRow(int col);

/// True from the eye's own row downwards.
bool IsHiddenByEye(int col, int row);

/// True on the last stage of the campaign in play.
bool isLastCampaignStage();

/// True when all seven columns are finished; on the last stage of a campaign this also sets campaignWon.
bool AllColumnsFinished();

/// Tiles from the bottom row to The End inclusive.
std::int64_t tilesLeft(int col);

/// Deals the code of a new top tile: weighted while the deck lasts, then The End once, then Empty.
int DrawTile(int col);

/// Starts the column anew from a location and fills its rows from the top.
void InitColumn(int col, int location);

/// Moves every tile one row down and deals a new top tile; the bottom tile is discarded.
void ShiftColumn(int col);

/// The sums of the nine item counts and of the six skill levels.
std::int64_t TotalStats();
std::int64_t TotalSkills();

}  // namespace gloomdeck
