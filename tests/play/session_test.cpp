// Whole sessions through the real start-up and main loop.
#include <filesystem>

#include "shell/layout.h"
#include "tests/support/script.h"

namespace gloomdeck {

TEST_F(PlayTest, AFirstStartOffersTheSelectionAndItsExitSavesBothFiles) {
    Script script;
    script.passTitle()
        .check([] {
            EXPECT_EQ(script::windowTitle(), "Select a game");
            EXPECT_EQ(nameText(prefs.heroName), "Alistair");
        })
        .key("\x1B");
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(std::filesystem::file_size(folder + "/Data/DGDP.dat"), 484U);
    EXPECT_EQ(std::filesystem::file_size(folder + "/Data/DGDG.dat"), 52U);
}

}  // namespace gloomdeck
