#include "help/help_pages.h"
#include "help/help_screen.h"
#include "help/help_texts.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "shell/tiles.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

constexpr Point ok{218, 302};
constexpr Point nextButton{305, 272};
constexpr Point prevButton{130, 272};
constexpr int boxTop = 216;

Point menuCell(int page) { return {40, 28 + 16 * page}; }

int page() { return widget(id::helpMenu).selected; }

std::string_view nameOf(int tablePage, int entry) {
    switch (tablePage) {
        case help_page::encounters: return encounterType(entry).name;
        case help_page::stats: return itemType(entry).name;
        case help_page::skills: return skillType(entry).name;
        default: return powerType(entry).name;
    }
}

int tileOf(int tablePage, int entry) {
    switch (tablePage) {
        case help_page::encounters: return encounterType(entry).tile;
        case help_page::stats: return itemType(entry).tile;
        case help_page::skills: return skillType(entry).tile;
        default: return powerType(entry).tile;
    }
}

bool entryStands(int tablePage, int entry) {
    return textStandsAt(146, 39, nameOf(tablePage, entry), colour::text) &&
           pixelAt(122, 44) == flatColour(tileOf(tablePage, entry)) &&
           pixelAt(106, 28) == flatColour(tablePage == help_page::stats ? tile::cellar : tile::pictureFrame);
}

bool chanceStands(int box, const std::string& text) {
    return textStandsAt(106 + 32 * box, boxTop - 10, text, colour::text);
}

bool anyInk(const Rect& area) {
    for (int y = area.y1; y <= area.y2; ++y)
        for (int x = area.x1; x <= area.x2; ++x)
            if (pixelAt(x, y) == colour::text) return true;
    return false;
}

void play(Script script) {
    startScript(script.key("q"));
    runHelpScreen();
    finishScript();
}

}  // namespace

using HelpTest = GameTest;

TEST_F(HelpTest, EveryEntryOfTheTablesIsReachedAndBothEndsAreJoined) {
    itemType(gold).tile = tile::goldTrading;  // the item's page shows what the game allows
    for (int table = help_page::encounters; table <= help_page::powers; ++table) {
        Script script;
        if (table != help_page::encounters) script.click(menuCell(table));
        const int entries = helpEntryCount(table);
        for (int entry = 0; entry < entries; ++entry)
            script.check([=] { EXPECT_TRUE(entryStands(table, entry)) << table << ", entry " << entry; })
                .key(keycode::right);
        script.check([=] { EXPECT_TRUE(entryStands(table, 0)) << table; })
            .click(prevButton)
            .check([=] { EXPECT_TRUE(entryStands(table, entries - 1)) << table; })
            .click(nextButton)
            .key(keycode::left)
            .check([=] { EXPECT_TRUE(entryStands(table, entries - 1)) << table; });
        play(script);
    }
}

TEST_F(HelpTest, ArrowsGoThroughThePagesAndAroundAndOnlyTablesHaveStepButtons) {
    Script script;
    script.check([] { EXPECT_EQ(page(), help_page::encounters); }).key(keycode::up).key(keycode::up);
    for (int i = 0; i < help_page::count; ++i)
        script
            .check([=] {
                EXPECT_EQ(page(), i);
                const bool table = i >= help_page::encounters && i <= help_page::powers;
                for (const int button : {id::next, id::prev}) {
                    EXPECT_EQ(widget(button).hidden, !table) << i;
                    EXPECT_EQ(pixelAt(widget(button).x + 2, 266), table ? colour::face : colour::panel) << i;
                }
            })
            .key(keycode::down);
    script.check([] { EXPECT_EQ(page(), help_page::basic); }).key(keycode::up);
    play(script.check([] { EXPECT_EQ(page(), help_page::about); }));
}

TEST_F(HelpTest, EachTableRemembersItsEntryUntilTheHelpIsLeft) {
    play(Script()
             .key(keycode::right)
             .click(menuCell(help_page::skills))
             .key(keycode::left)
             .key(keycode::left)
             .click(menuCell(help_page::basic))
             .key(keycode::right)
             .click(nextButton)
             .click(menuCell(help_page::encounters))
             .check([] { EXPECT_TRUE(entryStands(help_page::encounters, enc::Door)); })
             .click(menuCell(help_page::skills))
             .check([] { EXPECT_TRUE(entryStands(help_page::skills, sunBoost)); }));
    play(Script().check([] { EXPECT_TRUE(entryStands(help_page::encounters, enc::Gold)); }));
}

TEST_F(HelpTest, TheMenuHasEightCellsThatReact) {
    Script script;
    for (const int wanted : {7, 0, 6, 1, 5, 2})
        script.click(menuCell(wanted)).check([=] { EXPECT_EQ(page(), wanted); });
    play(script.click(menuCell(8))
             .press(menuCell(3))
             .release(menuCell(4))
             .check([] { EXPECT_EQ(page(), help_page::encounters); })
             .click(menuCell(2))
             .check([] { EXPECT_TRUE(entryStands(help_page::encounters, enc::Gold)); }));
}

TEST_F(HelpTest, EncountersShowTheirChancesAndWhatABombCannotTake) {
    const auto bombBox = [] { return pixelAt(250, boxTop + 16); };
    drawHelpPage(help_page::encounters, enc::Skeleton);
    EXPECT_TRUE(chanceStands(0, "50% "));
    EXPECT_TRUE(chanceStands(1, "16% "));
    EXPECT_TRUE(chanceStands(2, "50% "));
    EXPECT_EQ(pixelAt(122, boxTop + 16), flatColour(tile::shield));
    EXPECT_EQ(pixelAt(154, boxTop + 16), flatColour(tile::sun));
    EXPECT_EQ(pixelAt(186, boxTop + 16), flatColour(tile::lightning));
    EXPECT_EQ(bombBox(), flatColour(tile::bomb));
    for (const int code : {enc::Empty, enc::TheEnd}) {
        drawHelpPage(help_page::encounters, code);
        EXPECT_EQ(bombBox(), flatColour(tile::cover)) << code;
    }
    play(Script()
             .check([] {
                 EXPECT_FALSE(anyInk({106, 200, 330, 214})) << "Gold has no chances";
             })
             .key(keycode::right)
             .check([] {
                 EXPECT_FALSE(anyInk({138, 206, 169, 213})) << "the sun never opens a Door";
                 EXPECT_TRUE(chanceStands(0, "0% "));
                 EXPECT_TRUE(chanceStands(2, "2% "));
             }));
}

TEST_F(HelpTest, TextPagesStandInTheirPanelWithKeyNamesInYellow) {
    play(Script()
             .click(menuCell(help_page::keyboard))
             .check([] {
                 EXPECT_TRUE(textStandsAt(106, 100, "H,?", colour::yellow));
                 EXPECT_TRUE(textStandsAt(106 + 24, 100, ": Help", colour::text));
                 EXPECT_TRUE(textStandsAt(106, 148, "   same scenario or campaign", colour::text));
             })
             .click(menuCell(help_page::autoplayer))
             .check([] {
                 EXPECT_TRUE(textStandsAt(106, 88, "screen.", colour::text));
                 EXPECT_FALSE(anyInk({99, 98, 336, 110}));
                 EXPECT_TRUE(textStandsAt(106, 112, "\"Good\" means that it will", colour::text));
                 EXPECT_FALSE(anyInk({338, 20, 407, 480}));
             })
             .click(menuCell(help_page::about))
             .check([] {
                 EXPECT_TRUE(textStandsAt(182, 108, "Gloomdeck", colour::text));
                 EXPECT_EQ(pixelAt(282, 74), flatColour(tile::scroll));
             }));
}

}  // namespace gloomdeck
