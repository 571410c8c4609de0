// What lies where, what an eye hides, and what a deck deals next.
#include "rules/board.h"

#include "content/campaigns.h"
#include "content/locations.h"
#include "rules/dice.h"

namespace gloomdeck {

namespace {

std::int64_t deckLengthOf(int col) { return locationRow(column(col).location).deckLength; }

// The position in the deck of the tile in the top row, counted from 1.
std::int64_t topPosition(int col) { return std::int64_t{column(col).drawn} + rowCount; }

int drawWeighted(int location) {
    const int roll = Roll(100);
    int sum = 0;
    for (int code = 0; code < encounterCount; ++code) {
        sum += dealPercentage(location, code);
        if (dealPercentage(location, code) > 0 && roll <= sum) return code;
    }
    return enc::Empty;
}

}  // namespace

bool InBounds(int col, int row) { return col >= 0 && col < columnCount && row >= 0 && row < rowCount; }

bool IsPastEnd(int col, int row) { return deckLengthOf(col) < topPosition(col) - row; }

int highestEye(int col, int lastRow, Sight sight) {
    if (sight == Sight::counts && isActive(magicSight)) return none;
    for (int row = 0; row <= lastRow; ++row)
        if (cell(col, row) == enc::HypnoEye) return row;
    return none;
}

int FirstEyeRow(int col) { return highestEye(col, bottomRow - 1, Sight::counts); }

bool IsHiddenByEye(int col, int row) {
    const int eyeRow = FirstEyeRow(col);
    return eyeRow != none && eyeRow <= row;
}

bool isLastCampaignStage() {
    return game.campaign != none &&
           std::int64_t{game.campaignStage} + 1 == campaignRow(game.campaign).scenarioCount;
}

bool AllColumnsFinished() {
    for (int col = 0; col < columnCount; ++col)
        if (!column(col).finished) return false;
    if (isLastCampaignStage()) game.campaignWon = 1;
    return true;
}

std::int64_t tilesLeft(int col) { return deckLengthOf(col) - column(col).drawn; }

int DrawTile(int col) {
    if (topPosition(col) < deckLengthOf(col)) return drawWeighted(column(col).location);
    return topPosition(col) == deckLengthOf(col) ? enc::TheEnd : enc::Empty;
}

void InitColumn(int col, int location) {
    column(col).location = location;
    column(col).drawn = 0;
    column(col).finished = 0;
    for (int row = 0; row < rowCount; ++row) cell(col, row) = DrawTile(col);
}

void ShiftColumn(int col) {
    addTo(column(col).drawn, 1);
    for (int row = bottomRow; row > 0; --row) cell(col, row) = cell(col, row - 1);
    cell(col, 0) = DrawTile(col);
}

std::int64_t TotalStats() {
    std::int64_t total = 0;
    for (int item = 0; item < itemCount; ++item) total += count(item);
    return total;
}

std::int64_t TotalSkills() {
    std::int64_t total = 0;
    for (int skill = 0; skill < skillCount; ++skill) total += level(skill);
    return total;
}

}  // namespace gloomdeck
