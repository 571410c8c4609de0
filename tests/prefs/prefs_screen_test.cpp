#include "prefs/prefs_screen.h"

#include <cstring>

#include "platform/input.h"
#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

std::uint32_t switchWord() {
    std::uint32_t word = 0;
    std::memcpy(&word, reinterpret_cast<const char*>(&prefs) + 48, sizeof word);
    return word;
}

void play(const Script& script) {
    startScript(script);
    RunPreferencesScreen();
    finishScript();
}

}  // namespace

using PrefsScreenTest = GameTest;

TEST_F(PrefsScreenTest, EachRowFlipsItsOwnSwitchOfWhichTwoAreCrossed) {
    prefs.unusedSwitches = 0x1579BDF;
    const std::uint32_t allOff = switchWord();
    Script script;
    for (int row = id::toggle; const int bit : {0, 1, 2, 4, 3, 5, 6}) {
        script.button(row).check([=] { EXPECT_EQ(switchWord(), allOff | 1U << bit); });
        script.button(row++).check([=] { EXPECT_EQ(switchWord(), allOff); });
    }
    play(script.key("q"));
}

TEST_F(PrefsScreenTest, ADamagedSpeedCountsAsTheNearestEndUntilItIsChanged) {
    for (const auto& [damaged, key, changed] :
         {std::tuple{99, "+", 99}, {99, "-", 5}, {-2147483647, "-", -2147483647}, {-2147483647, "+", 1}}) {
        prefs.GameSpeed = damaged;
        play(Script().key(key).key("q"));
        EXPECT_EQ(prefs.GameSpeed, changed);
    }
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
