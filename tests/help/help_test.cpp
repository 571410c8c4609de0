#include "help/help_pages.h"
#include "help/help_screen.h"
#include "help/help_texts.h"
#include "platform/palette.h"
#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

Point menuCell(int page) { return {40, 28 + 16 * page}; }

Script::Step shows(const std::string& name) {
    return [=](InputQueue&) { EXPECT_TRUE(textStandsAt(146, 39, name, colour::text)) << name; };
}

void play(Script script) {
    startScript(script.key("q"));
    runHelpScreen();
    finishScript();
}

}  // namespace

using HelpTest = GameTest;

TEST_F(HelpTest, TheEntriesOfATableFormARingAndEachTableRemembersItsOwnUntilTheHelpIsLeft) {
    struct Table {
        int page;
        const char *first, *second, *last;
    };
    Script script;
    for (const Table& table : {Table{help_page::encounters, "Gold", "Door", "Flower"},
                               Table{help_page::stats, "Keys", "Torches", "Health"},
                               Table{help_page::skills, "Lockpicking", "Thief protection", "Toughness"},
                               Table{help_page::powers, "Magic sight", "Stasis", "Deflection"}}) {
        if (table.page != help_page::encounters) script.click(menuCell(table.page));
        script.then(shows(table.first)).key(keycode::left).then(shows(table.last)).button(id::next);
        script.then(shows(table.first)).button(id::prev).then(shows(table.last)).key(keycode::right);
        script.key(keycode::right).then(shows(table.second));
    }
    script.click(menuCell(help_page::basic)).key(keycode::right).button(id::next);
    play(script.click(menuCell(help_page::encounters)).then(shows("Door")));
    play(Script().then(shows("Gold")));
}

TEST_F(HelpTest, EveryEntryOfEveryTableIsReachedInItsOrder) {
    const auto nameOf = [](int page, int entry) {
        switch (page) {
            case help_page::encounters: return encounterType(entry).name;
            case help_page::stats: return itemType(entry).name;
            case help_page::skills: return skillType(entry).name;
            default: return powerType(entry).name;
        }
    };
    Script script;
    int entries = 0;
    for (int page = help_page::encounters; page <= help_page::powers; ++page) {
        for (int entry = 0; entry < helpEntryCount(page); ++entry, ++entries)
            script.then(shows(std::string(nameOf(page, entry)))).key(keycode::right);
        script.key(keycode::down);
    }
    play(script);
    EXPECT_EQ(entries, 42);
}

TEST_F(HelpTest, ArrowsGoThroughThePagesAndAroundAndOnlyTablesHaveStepButtons) {
    const auto stands = [](int page) {
        return [=](InputQueue&) {
            const bool table = page >= help_page::encounters && page <= help_page::powers;
            EXPECT_EQ(widget(id::helpMenu).selected, page);
            EXPECT_EQ(widget(id::next).hidden, !table) << page;
            EXPECT_EQ(widget(id::prev).hidden, !table) << page;
            EXPECT_EQ(pixelAt(widget(id::next).x + 2, 266), table ? colour::face : colour::panel) << page;
        };
    };
    Script script;
    script.then(stands(help_page::encounters)).key(keycode::up).key(keycode::up);
    for (int page = 0; page < help_page::count; ++page) script.then(stands(page)).key(keycode::down);
    play(script.then(stands(help_page::basic)).key(keycode::up).then(stands(help_page::about)));
}

TEST_F(HelpTest, EncountersShowTheirChancesUnlessThereIsNone) {
    drawHelpPage(help_page::encounters, enc::Skeleton);
    EXPECT_TRUE(textStandsAt(106, 206, "50% 16% 50% ", colour::text));
    play(Script().key(keycode::right).check([] {
        EXPECT_TRUE(textStandsAt(106, 206, "0%      2%  ", colour::text)) << "the sun never opens a Door";
    }));
}

TEST_F(HelpTest, TextPagesNameTheirKeysInYellow) {
    drawHelpPage(help_page::keyboard, 0);
    EXPECT_TRUE(textStandsAt(106, 100, "H,?", colour::yellow));
    EXPECT_TRUE(textStandsAt(130, 100, ": Help", colour::text));
}

}  // namespace gloomdeck
