// The title picture, and starts with something missing.
#include <filesystem>
#include <fstream>

#include "tests/support/script.h"

namespace gloomdeck {

TEST_F(PlayTest, TheTitleGoesOnByAKeyAClickOrAfterFifteenSeconds) {
    const auto titleStands = [] {
        EXPECT_EQ(script::windowTitle(), "Gloomdeck 1.2");
        EXPECT_EQ(pixelAt(407, 487), 0xFF102030);
    };
    const std::array ways{Script().check(titleStands).key("z"),
                          Script().press({0, 0}).wait(20).check(titleStands).release({0, 0}),
                          Script().wait(14.99).check(titleStands).wait(0.02)};
    for (Script way : ways) EXPECT_EQ(firstRun(way.screen("Select a game").closeWindow()), 0);
}

TEST_F(PlayTest, MissingPicturesStopNothing) {
    removePictures();
    Script script;
    script.check([] { EXPECT_EQ(pixelAt(0, 0), 0xFF000000); }).startScenario(0).hurry().clearBoard();
    EXPECT_EQ(run(script.key("H").key("q").key("P").key("q").closeWindow()), 0);
}

TEST_F(QuickPlayTest, WithoutADataFolderTheGameIsPlayedAndNothingIsKept) {
    script.startScenario(0).click(boardCell(3, bottomRow)).closeWindow();
    for (const bool isFile : {false, true}) {
        std::filesystem::remove_all(folder + "/Data");
        if (isFile) std::ofstream(folder + "/Data") << "no folder";
        EXPECT_EQ(restart(script), 0);
        EXPECT_EQ(std::filesystem::is_regular_file(folder + "/Data"), isFile);
        EXPECT_EQ(std::filesystem::exists(folder + "/Data"), isFile);
    }
}

TEST_F(QuickPlayTest, OneDataFileAloneIsNotReadAndIsReplaced) {
    writeDataFile("DGDG.dat", std::string(60, '\x02'));
    EXPECT_EQ(run(Script().passTitle().screen("Select a game").closeWindow()), 0);
    EXPECT_EQ(dataFile("DGDG.dat").substr(12, 8), "Alistair");
    EXPECT_EQ(dataFile("DGDG.dat").substr(52), std::string(8, '\x02'));
    EXPECT_EQ(dataFile("DGDP.dat").size(), sizeof game);
}

}  // namespace gloomdeck
