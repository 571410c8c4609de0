// The information area: what the pointer is over, its chances, or why it keeps its secret.
#include "shell/play/describe.h"

#include <string>
#include <string_view>

#include "content/locations.h"
#include "platform/draw.h"
#include "platform/system.h"
#include "rules/board.h"
#include "rules/catalogue.h"
#include "shell/play/play_pieces.h"
#include "shell/widgets/screen_lock.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int textLeft = 15;
constexpr int textTop = 406;
constexpr int boxTop = 416;
constexpr int boxesLeft = 143;
constexpr Point itemText{55, 426};

int boxLeft(int box) { return boxesLeft + tile::size * box; }

void drawChanceBox(int box, int icon, int chance, int boost) {
    const int x = boxLeft(box);
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
    drawChanceBox(chance_box::shield, tile::shield, type.shieldChance, level(shieldBoost));
    drawChanceBox(chance_box::sun, tile::sun, type.sunChance, level(sunBoost));
    drawChanceBox(chance_box::lightning, tile::lightning, type.lightningChance, level(lightningBoost));
    drawBombBox(code, boxLeft(chance_box::bomb), boxTop);
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
    drawText(itemText.x, itemText.y, type.description);
    tell(std::string(type.name) + ": " + std::string(type.description));
}

}  // namespace gloomdeck
