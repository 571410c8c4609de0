// A glow on the hovered cell, which is given back as it was.
#include "shell/play/hover.h"

#include "platform/draw.h"
#include "platform/frame.h"
#include "shell/play/describe.h"
#include "shell/play/play_pieces.h"
#include "shell/play/stats_column.h"
#include "shell/widgets/hit_test.h"
#include "shell/widgets/tile_set.h"
#include "shell/widgets/ui_state.h"

namespace gloomdeck {

namespace {

constexpr int hoverAlpha = 64;
constexpr int aimAlpha = 88;

Point cornerOf(const Button& grid) { return cellCorner(grid, grid.hoverCol, grid.hoverRow); }

}  // namespace

void hoverTile(const Button& board) {
    const Point corner = cornerOf(board);
    getImage(screen(), corner.x, corner.y, corner.x + tile::size - 1, corner.y + tile::size - 1, cellBackup);
    const bool aiming = ui.targetMode != target::none;
    putTile(tile::glow, corner, putBlended(aiming ? aimAlpha : hoverAlpha));
    if (aiming) putTile(modeTile(), corner, putTransparent);
    describeBoardCell(board.hoverCol, board.hoverRow);
}

void leaveTile(const Button& board) {
    putImage(cornerOf(board).x, cornerOf(board).y, cellBackup, putCopy);
    clearInfoArea();
}

void hoverItem(const Button& stats) {
    putTile(tile::glow, cornerOf(stats), putBlended(hoverAlpha));
    describeItem(stats.hoverRow);
}

void leaveItem(const Button& stats) {
    drawStatsCell(stats.hoverRow);
    clearInfoArea();
}

}  // namespace gloomdeck
