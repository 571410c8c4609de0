// The title picture, and starts with something missing.
#include <filesystem>
#include <fstream>

#include "shell/tile_set.h"
#include "tests/support/script.h"

namespace gloomdeck {

TEST_F(PlayTest, TheTitleGoesOnByAKeyAClickOrAfterFifteenSeconds) {
    const auto titleStands = [] {
        EXPECT_EQ(script::windowTitle(), "Gloomdeck 1.2");
        EXPECT_EQ(pixelAt(407, 487), 0xFF102030);
    };
    Script key;
    key.check(titleStands).key("z").screen("Select a game").closeWindow();
    EXPECT_EQ(run(key), 0);
    Script click;
    click.press({0, 0}).wait(20).check(titleStands).release({0, 0}).screen("Select a game").closeWindow();
    EXPECT_EQ(restart(click), 0);
    Script wait;
    wait.wait(14.99).check(titleStands).wait(0.02).screen("Select a game").closeWindow();
    EXPECT_EQ(restart(wait), 0);
}

TEST_F(PlayTest, MissingPicturesStopNothing) {
    std::filesystem::remove(folder + "/gfx/dtitle.bmp");
    std::filesystem::remove(folder + "/gfx/dtiles2.bmp");
    Script script;
    script.check([] { EXPECT_EQ(pixelAt(0, 0), 0xFF000000); }).startScenario(0);
    script.check([] {
        EXPECT_EQ(tileImage(49).pixels[500], flatColour(49));
        EXPECT_EQ(tileImage(50).pixels[500], transparentColour);
        EXPECT_EQ(tileImage(98).pixels[500], transparentColour);
        EXPECT_EQ(tileImage(99).pixels[500], flatColour(99));
    });
    script.closeWindow();
    EXPECT_EQ(run(script), 0);

    removePictures();
    Script bare;
    bare.passTitle().hurry().clearBoard().key("T").key("H").key("q").key("P").key("q").closeWindow();
    EXPECT_EQ(restart(bare), 0);
}

TEST_F(PlayTest, WithoutADataFolderTheGameIsPlayedAndNothingIsKept) {
    for (const bool isFile : {false, true}) {
        std::filesystem::remove_all(folder + "/Data");
        if (isFile) std::ofstream(folder + "/Data") << "no folder";
        Script script;
        script.startScenario(0).click(boardCell(3, bottomRow)).closeWindow();
        EXPECT_EQ(restart(script), 0);
        EXPECT_EQ(std::filesystem::is_directory(folder + "/Data"), false);
        EXPECT_EQ(std::filesystem::exists(folder + "/Data"), isFile);
    }
}

TEST_F(PlayTest, OneDataFileAloneIsNotReadAndIsReplaced) {
    writeDataFile("DGDG.dat", std::string(60, '\x02'));
    Script script;
    script.passTitle().screen("Select a game").check([] { EXPECT_EQ(nameText(prefs.heroName), "Alistair"); });
    script.closeWindow();
    EXPECT_EQ(run(script), 0);
    EXPECT_EQ(dataFile("DGDG.dat").substr(12, 8), "Alistair");
    EXPECT_EQ(dataFile("DGDG.dat").substr(52), std::string(8, '\x02'));
    EXPECT_EQ(dataFile("DGDP.dat").size(), 484U);
}

}  // namespace gloomdeck
