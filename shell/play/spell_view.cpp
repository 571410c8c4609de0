// What the spells and the bomb look like on the board. Times are milliseconds at the normal game speed.
#include "platform/draw.h"
#include "platform/frame.h"
#include "platform/palette.h"
#include "rules/board.h"
#include "rules/dice.h"
#include "rules/show.h"
#include "shell/play/cell_view.h"
#include "shell/widgets/pacing.h"
#include "shell/widgets/places.h"
#include "shell/widgets/screen_lock.h"

namespace gloomdeck {

namespace {

constexpr int sunPause = 1000;
constexpr int sunAlpha = 128;
constexpr int boltStepPause = 150;
constexpr int boltEndPause = 450;
constexpr int blastPause = 20;
constexpr int blastRings = 24;
constexpr int blinkPause = 100;
constexpr int blinks = 3;

int boltX = 0;  // where the bolt under way has come to

int nextBoltX(int col) { return boardGrid.corner(col, 0).x + Roll(26) + 3; }

void dazzle() {
    const HeldScreen held;
    for (int col = 0; col < columnCount; ++col)
        for (int row = 0; row < rowCount; ++row) overlayTile(tile::glow, col, row, sunAlpha);
}

}  // namespace

void showSunlight() {
    dazzle();
    Delay(sunPause);
}

void startBolt(int col) { boltX = nextBoltX(col); }

void showBoltStep(int col, int row) {
    const int top = boardGrid.corner(col, row).y;
    const int x = nextBoltX(col);
    for (const int d : {0, -1, -2, 1, 2})
        drawLine(boltX + d, top + tile::size - 1, x + d, top, colour::yellow);
    boltX = x;
    Delay(boltStepPause);
}

void endBolt() { Delay(boltEndPause); }

void showBlast(int col, int row) {
    const Point corner = boardGrid.corner(col, row);
    const int x = corner.x + tile::size / 2;
    const int y = corner.y + tile::size / 2;
    const ClipTo clip{boardGrid.area()};
    for (int ring = 1; ring <= blastRings; ++ring) {
        drawCircle(x, y, 2 * ring, colour::yellow);
        Delay(blastPause);
        drawCircle(x, y, 2 * ring, colour::black);
    }
}

void showBlastHit(int col, int row) {
    for (int i = 1; i <= blinks; ++i) {
        drawCellTile(col, row);
        overlayTile(tile::bomb, col, row);
        Delay(blinkPause);
        drawTileInCell(tile::empty, col, row);
        if (i < blinks) Delay(blinkPause);
    }
}

}  // namespace gloomdeck
