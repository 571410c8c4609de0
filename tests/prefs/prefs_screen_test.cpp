#include "prefs/prefs_screen.h"

#include <cstring>

#include "platform/input.h"
#include "shell/layout.h"
#include "shell/palette.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

constexpr Point done{204, 346};
constexpr Point slower{148, 132};
constexpr Point faster{260, 132};

Point toggle(int row) { return {124, (row == 6 ? 314 : 182 + 19 * row)}; }

std::uint32_t switchWord() {
    std::uint32_t word = 0;
    std::memcpy(&word, reinterpret_cast<const char*>(&prefs) + 48, sizeof word);
    return word;
}

void setSwitchWord(std::uint32_t word) {
    std::memcpy(reinterpret_cast<char*>(&prefs) + 48, &word, sizeof word);
}

bool rowStands(int row, const std::string& text, Colour ink) {
    return textStandsAt(162, toggle(row).y - 4, text, ink);
}

bool speedStands(const std::string& name) {
    return textStandsAt(204 - 4 * static_cast<int>(name.size()), 129, name, colour::text);
}

void play(Script script) {
    startScript(script.key("q"));
    RunPreferencesScreen();
    finishScript();
}

}  // namespace

using PrefsScreenTest = GameTest;

TEST_F(PrefsScreenTest, EachRowFlipsItsOwnSwitchOfWhichTwoAreCrossed) {
    struct Row {
        const char* label;
        std::uint32_t bit;
    };
    const std::array<Row, toggleRows> rows{{{"Good stuff: ", 0},
                                            {"Fairly easy: ", 1},
                                            {"Obstacles: ", 2},
                                            {"Spells/skills: ", 4},
                                            {"\"Grief\": ", 3},
                                            {"Restart: ", 5},
                                            {"Skip text: ", 6}}};
    const std::uint32_t others = 0xABCDEF00 | 0x80;  // bits that no row shows stay
    setSwitchWord(others);
    Script script;
    for (int row = 0; row < toggleRows; ++row) {
        const Row& r = rows[static_cast<std::size_t>(row)];
        script.check([=] { EXPECT_TRUE(rowStands(row, r.label + std::string("Off"), colour::slate)) << row; })
            .click(toggle(row))
            .check([=] {
                EXPECT_EQ(switchWord(), others | 1U << r.bit);
                EXPECT_TRUE(rowStands(row, r.label + std::string("On "), colour::yellow)) << row;
            })
            .click(toggle(row))
            .check([=] { EXPECT_EQ(switchWord(), others) << row; });
    }
    play(script);
}

TEST_F(PrefsScreenTest, TheSpeedChangesByKeysAndButtonsWithinItsLimitsAndPostsNothing) {
    ShowMessage("before", 0);
    prefs.GameSpeed = 5;
    Script script;
    script.check([] { EXPECT_TRUE(speedStands("Ultra Fast")); })
        .click(faster)
        .check([] { EXPECT_TRUE(speedStands("Mega fast")); })
        .key("+")
        .click(faster)
        .check([] { EXPECT_EQ(prefs.GameSpeed, 6); });
    for (int i = 0; i < 3; ++i) script.key("-").click(slower);
    script.check([] { EXPECT_TRUE(speedStands("Slowest")); }).key("-").click(slower).key("+");
    play(script);
    EXPECT_EQ(prefs.GameSpeed, 1);
    EXPECT_EQ(newestMessage(), "before");
    EXPECT_FALSE(ui.messagePosted);
}

TEST_F(PrefsScreenTest, ADamagedSpeedCountsAsTheNearestEndUntilItIsChanged) {
    prefs.GameSpeed = 99;
    play(Script().check([] { EXPECT_TRUE(speedStands("Mega fast")); }).key("+"));
    EXPECT_EQ(prefs.GameSpeed, 99);
    play(Script().key("-"));
    EXPECT_EQ(prefs.GameSpeed, 5);
    prefs.GameSpeed = -2147483647;
    play(Script().check([] { EXPECT_TRUE(speedStands("Slowest")); }).key("+"));
    EXPECT_EQ(prefs.GameSpeed, 1);
}

TEST_F(PrefsScreenTest, AKeyOfThePassInWhichAClickCompletesWaitsForTheNext) {
    startScript(Script().press(done).then([](InputQueue& queue) {
        buttonChanged(queue, false);
        keyTyped(queue, "-");
    }));
    RunPreferencesScreen();
    finishScript();
    EXPECT_EQ(prefs.GameSpeed, 6);
    EXPECT_EQ(readKey(), "-");
}

}  // namespace gloomdeck
