#include "shell/describe.h"

#include <string>
#include <string_view>

#include "content/locations.h"
#include "platform/draw.h"
#include "platform/system.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "shell/play_pieces.h"
#include "shell/screen_lock.h"
#include "shell/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int textLeft = 15;
constexpr int textTop = 406;
constexpr int boxTop = 416;
constexpr int chanceLift = 10;  // a percentage stands above its box

void drawChanceBox(int x, int icon, int chance, int boost) {
    drawFramedTile(icon, x, boxTop);
    if (chance == never)
        putTile(tile::cover, x, boxTop, putTransparent);
    else
        drawText(x, boxTop - chanceLift, std::to_string(std::int64_t{chance} + boost) + "%");
}

void describeInWords(std::string_view text) {
    drawText(textLeft, textTop, text);
    tell(std::string(text));
}

void describeEncounter(int col, int code) {
    const EncounterType& type = encounterType(code);
    putTile(locationRow(column(col).location).backgroundTile, textLeft, boxTop, putCopy);
    putTile(type.tile, textLeft, boxTop, putTransparent);
    describeInWords(type.name);
    drawChanceBox(143, tile::shield, type.shieldChance, level(shieldBoost));
    drawChanceBox(175, tile::sun, type.sunChance, level(sunBoost));
    drawChanceBox(207, tile::lightning, type.lightningChance, level(lightningBoost));
    drawBombBox(code, 271, boxTop);
}

}  // namespace

void drawFramedTile(int tileNumber, int x, int y) {
    putTile(tile::pictureFrame, x, y, putCopy);
    putTile(tileNumber, x, y, putTransparent);
}

void drawBombBox(int code, int x, int y) {
    drawFramedTile(tile::bomb, x, y);
    if (IsEmptyOrEnd(code)) putTile(tile::cover, x, y, putTransparent);
}

void describeBoardCell(int col, int row) {
    const HeldScreen held;
    clearInfoArea();
    const int eyeRow = FirstEyeRow(col);
    if (IsPastEnd(col, row))
        describeInWords("You have finished this column.");
    else if (eyeRow != none && eyeRow < row)
        describeInWords("This space is hidden by a Hypno Eye.");
    else
        describeEncounter(col, cell(col, row));
}

void describeItem(int row) {
    const HeldScreen held;
    clearInfoArea();
    const ItemType& type = itemType(row);
    drawFramedTile(type.tile, textLeft, boxTop);
    drawText(textLeft, textTop, std::string(type.name) + ": ");
    drawText(55, 426, type.description);
    tell(std::string(type.name) + ": " + std::string(type.description));
}

}  // namespace gloomdeck
