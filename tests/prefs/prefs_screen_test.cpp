#include "prefs/prefs_screen.h"

#include <cstring>

#include "platform/input.h"
#include "platform/palette.h"
#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

std::uint32_t switchWord() {
    std::uint32_t word = 0;
    std::memcpy(&word, reinterpret_cast<const char*>(&prefs) + 48, sizeof word);
    return word;
}

bool rowStands(int button, const std::string& text, Colour ink) {
    return textStandsAt(162, widget(button).y + 4, text, ink);
}

bool speedStands(const std::string& name) {
    return textStandsAt(204 - 4 * static_cast<int>(name.size()), 129, name, colour::text);
}

void play(const Script& script) {
    startScript(script);
    RunPreferencesScreen();
    finishScript();
}

}  // namespace

using PrefsScreenTest = GameTest;

TEST_F(PrefsScreenTest, EachRowFlipsItsOwnSwitchOfWhichTwoAreCrossed) {
    const std::array<std::string, toggleRows> labels{
        "Good stuff: ", "Fairly easy: ", "Obstacles: ", "Spells/skills: ",
        "\"Grief\": ",  "Restart: ",     "Skip text: "};
    const std::array<int, toggleRows> bits{0, 1, 2, 4, 3, 5, 6};
    prefs.unusedSwitches = 0x1579BDF;
    const std::uint32_t allOff = switchWord();
    Script script;
    for (std::size_t row = 0; row < toggleRows; ++row) {
        const int button = id::toggle + static_cast<int>(row);
        script.check([=] { EXPECT_TRUE(rowStands(button, labels[row] + "Off", colour::slate)) << row; })
            .button(button)
            .check([=] {
                EXPECT_EQ(switchWord(), allOff | 1U << bits[row]);
                EXPECT_TRUE(rowStands(button, labels[row] + "On ", colour::yellow)) << row;
            })
            .button(button);
    }
    play(script.key("q"));
    EXPECT_EQ(switchWord(), allOff);
}

TEST_F(PrefsScreenTest, TheSpeedChangesByKeysAndButtonsWithinItsLimitsAndPostsNothing) {
    prefs.GameSpeed = 5;
    Script script;
    script.button(id::speedUp).check([] { EXPECT_TRUE(speedStands("Mega fast")); });
    script.key("+").button(id::speedUp).check([] { EXPECT_EQ(prefs.GameSpeed, 6); });
    for (int i = 0; i < 4; ++i) script.key("-").button(id::speedDown);
    play(script.check([] { EXPECT_TRUE(speedStands("Slowest")); }).key("+").key("q"));
    EXPECT_EQ(prefs.GameSpeed, 1);
    EXPECT_EQ(newestMessage(), "");
}

TEST_F(PrefsScreenTest, ADamagedSpeedCountsAsTheNearestEndUntilItIsChanged) {
    prefs.GameSpeed = 99;
    play(Script().check([] { EXPECT_TRUE(speedStands("Mega fast")); }).key("+").key("q"));
    EXPECT_EQ(prefs.GameSpeed, 99);
    play(Script().key("-").key("q"));
    EXPECT_EQ(prefs.GameSpeed, 5);
    prefs.GameSpeed = -2147483647;
    play(Script().check([] { EXPECT_TRUE(speedStands("Slowest")); }).key("+").key("q"));
    EXPECT_EQ(prefs.GameSpeed, 1);
}

TEST_F(PrefsScreenTest, AKeyOfThePassInWhichAClickCompletesWaitsForTheNext) {
    play(Script().press({204, 346}).then([](InputQueue& queue) {
        buttonChanged(queue, false);
        keyTyped(queue, "-");
    }));
    EXPECT_EQ(prefs.GameSpeed, 6);
    EXPECT_EQ(readKey(), "-");
}

}  // namespace gloomdeck
