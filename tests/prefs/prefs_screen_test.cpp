#include "prefs/screen/prefs_screen.h"

#include "platform/input.h"
#include "shell/widgets/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

void play(const Script& script) {
    startScript(script);
    RunPreferencesScreen();
    finishScript();
}

}  // namespace

using PrefsScreenTest = GameTest;

TEST_F(PrefsScreenTest, EachRowFlipsItsOwnSwitchOfWhichTwoAreCrossed) {
    constexpr std::uint32_t allOff = 0xABCDEF80;  // the bits that no switch has stay as they are
    prefs.switches = allOff;
    Script script;
    for (int row = id::toggle; const int bit : {0, 1, 2, 4, 3, 5, 6}) {
        script.button(row).check([=] { EXPECT_EQ(prefs.switches, allOff | 1U << bit); });
        script.button(row++).check([=] { EXPECT_EQ(prefs.switches, allOff); });
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
