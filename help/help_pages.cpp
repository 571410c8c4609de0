#include "help/help_pages.h"

#include <span>
#include <string>

#include "help/help_texts.h"
#include "platform/draw.h"
#include "platform/palette.h"
#include "rules/catalogue.h"
#include "shell/describe.h"
#include "shell/panels.h"
#include "shell/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int left = 106;
constexpr int top = 28;
constexpr int charactersPerLine = 28;
constexpr int lineStep = 12;
constexpr int boxTop = 216;
constexpr int chanceLift = 10;

// Names of keys stand before a colon and are drawn in yellow.
void drawKeyLines(std::span<const HelpLine> lines) {
    for (const HelpLine& line : lines) {
        drawText(left, line.y, line.text);
        const auto colon = line.text.find(':');
        if (colon != std::string_view::npos)
            drawText(left, line.y, line.text.substr(0, colon), colour::yellow);
    }
}

void drawEntry(int behind, int tileNumber, std::string_view name, std::string_view description) {
    putTile(behind, left, top, putCopy);
    putTile(tileNumber, left, top, putTransparent);
    drawText(146, 39, name);
    drawWrappedText(std::string(description), left, 70, charactersPerLine, lineStep);
}

void drawChance(int box, int icon, int chance) {
    const int x = left + tile::size * box;
    drawFramedTile(icon, x, boxTop);
    if (chance != never) drawText(x, boxTop - chanceLift, std::to_string(chance) + "%");
}

void drawEncounterEntry(int code) {
    const EncounterType& type = encounterType(code);
    drawEntry(tile::pictureFrame, type.tile, type.name, type.description);
    drawChance(0, tile::shield, type.shieldChance);
    drawChance(1, tile::sun, type.sunChance);
    drawChance(2, tile::lightning, type.lightningChance);
    drawBombBox(code, 234, boxTop);
}

void drawItemEntry(int item) {
    drawEntry(tile::cellar, itemType(item).tile, itemType(item).name, itemType(item).description);
}

void drawSkillEntry(int skill) {
    drawEntry(tile::pictureFrame, skillType(skill).tile, skillType(skill).name, skillType(skill).description);
}

void drawPowerEntry(int power) {
    drawEntry(tile::pictureFrame, powerType(power).tile, powerType(power).name, powerType(power).description);
}

void drawAbout() {
    drawFramedTile(tile::ghost, 138, 58);
    drawFramedTile(tile::lockedChest, 202, 58);
    drawFramedTile(tile::scroll, 266, 58);
    centredText("Gloomdeck", 218, 108);
}

}  // namespace

int helpEntryCount(int page) {
    switch (page) {
        case help_page::encounters: return enc::count;
        case help_page::stats: return itemCount;
        case help_page::skills: return skillCount;
        case help_page::powers: return powerCount;
        default: return 1;
    }
}

void drawHelpPage(int page, int entry) {
    switch (page) {
        case help_page::basic: return drawKeyLines(basicHelp);
        case help_page::keyboard: return drawKeyLines(keyboardHelp);
        case help_page::encounters: return drawEncounterEntry(entry);
        case help_page::stats: return drawItemEntry(entry);
        case help_page::skills: return drawSkillEntry(entry);
        case help_page::powers: return drawPowerEntry(entry);
        case help_page::autoplayer:
            return drawWrappedText(std::string(autoplayerHelp), left, top, charactersPerLine, lineStep);
        default: return drawAbout();
    }
}

}  // namespace gloomdeck
