// The pages, a row each: label, entries, and how one is drawn.
#include "help/help_pages.h"

#include <span>
#include <string>

#include "help/help_texts.h"
#include "platform/draw.h"
#include "platform/palette.h"
#include "platform/table.h"
#include "rules/catalogue.h"
#include "shell/play/describe.h"
#include "shell/widgets/panels.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

constexpr int left = 106;
constexpr int top = 28;
constexpr int charactersPerLine = 28;
constexpr int lineStep = 12;
constexpr int boxTop = 216;
constexpr Point entryName{146, 39};
constexpr int entryTextTop = 70;
constexpr int aboutMiddle = 218;
constexpr int aboutPicturesTop = 58;
constexpr int aboutTextTop = 108;
constexpr int aboutStep = 2 * tile::size;

int boxLeft(int box) { return left + tile::size * box; }

// Names of keys stand before a colon and are drawn in yellow.
void drawKeyLines(std::span<const HelpLine> lines) {
    for (const HelpLine& line : lines) {
        drawText(left, line.y, line.text);
        const auto colon = line.text.find(':');
        if (colon != std::string_view::npos)
            drawText(left, line.y, line.text.substr(0, colon), colour::yellow);
    }
}

void drawDescription(std::string_view text, int y) {
    drawWrappedText(std::string(text), left, y, charactersPerLine, lineStep);
}

void drawEntry(int behind, int tileNumber, std::string_view name, std::string_view description) {
    putTile(behind, left, top, putCopy);
    putTile(tileNumber, left, top, putTransparent);
    drawText(entryName.x, entryName.y, name);
    drawDescription(description, entryTextTop);
}

void drawChance(int box, int icon, int chance) {
    const int x = boxLeft(box);
    drawFramedTile(icon, x, boxTop);
    if (chance != never) drawText(x, boxTop - chanceLift, std::to_string(chance) + "%");
}

void drawEncounterEntry(int code) {
    const EncounterType& type = encounterType(code);
    drawEntry(tile::pictureFrame, type.tile, type.name, type.description);
    drawChance(chance_box::shield, tile::shield, type.shieldChance);
    drawChance(chance_box::sun, tile::sun, type.sunChance);
    drawChance(chance_box::lightning, tile::lightning, type.lightningChance);
    drawBombBox(code, boxLeft(chance_box::bomb), boxTop);
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
    int x = aboutMiddle - aboutStep - tile::size / 2;
    for (const int picture : {tile::ghost, tile::lockedChest, tile::scroll}) {
        drawFramedTile(picture, x, aboutPicturesTop);
        x += aboutStep;
    }
    centredText("Gloomdeck", aboutMiddle, aboutTextTop);
}

struct HelpPage {
    help_page::Id id;  // its own row
    std::string_view label;
    int entries;
    void (*draw)(int entry);
};

// clang-format off
constexpr std::array<HelpPage, helpPageCount> helpPages{{
    {help_page::basic,       "Basic",      1,              [](int) { drawKeyLines(basicHelp); }},
    {help_page::keyboard,    "Keyboard",   1,              [](int) { drawKeyLines(keyboardHelp); }},
    {help_page::encounters,  "Encounters", encounterCount, drawEncounterEntry},
    {help_page::stats,       "Stats",      itemCount,      drawItemEntry},
    {help_page::skills,      "Skills",     skillCount,     drawSkillEntry},
    {help_page::powers,      "Powers",     powerCount,     drawPowerEntry},
    {help_page::autoplayer,  "Autoplayer", 1,              [](int) { drawDescription(autoplayerHelp, top); }},
    {help_page::about,       "About",      1,              [](int) { drawAbout(); }},
}};
// clang-format on
static_assert(rowsStandAtTheirIndex(helpPages, &HelpPage::id));

const HelpPage& helpPage(int page) { return helpPages[static_cast<std::size_t>(page)]; }

}  // namespace

constexpr std::array<std::string_view, helpPageCount> helpPageLabels = [] {
    std::array<std::string_view, helpPageCount> labels;
    for (std::size_t i = 0; i < labels.size(); ++i) labels[i] = helpPages[i].label;
    return labels;
}();

int helpEntryCount(int page) { return helpPage(page).entries; }

void drawHelpPage(int page, int entry) { helpPage(page).draw(entry); }

}  // namespace gloomdeck
