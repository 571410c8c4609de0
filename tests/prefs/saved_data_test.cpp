#include "prefs/saved_data.h"

#include <cstring>
#include <filesystem>
#include <random>

#include "prefs/switches.h"
#include "tests/support/script.h"

namespace gloomdeck {

namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

std::string noise(std::size_t length) {
    static std::mt19937 random(2);
    std::string bytes(length, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

}  // namespace

using SavedDataTest = PlayTest;

TEST_F(SavedDataTest, AnyBytesAreReadAndWrittenBackAndLongFilesKeepTheirTails) {
    script::setFolder(folder);
    for (const std::size_t length : {0U, 1U, 51U, 52U, 53U, 483U, 484U, 600U}) {
        SCOPED_TRACE(length);
        std::string gameFile = noise(length);
        std::string prefsFile = noise(length);
        writeDataFile("DGDP.dat", gameFile);
        writeDataFile("DGDG.dat", prefsFile);
        game.inventory.fill(9);
        prefs.heroName.fill('x');
        EXPECT_EQ(LoadSavedData(), 1);
        SaveData();
        gameFile.resize(std::max(length, sizeof game));  // zero where the file was too short
        prefsFile.resize(std::max(length, sizeof prefs));
        EXPECT_EQ(dataFile("DGDP.dat"), gameFile);
        EXPECT_EQ(dataFile("DGDG.dat"), prefsFile.replace(8, 4, 4, '\0')) << "the reserved field is cleared";
    }
}

TEST_F(SavedDataTest, WhereOneFileCannotBeReadNeitherIsLoadedAndTheRunSavesNothing) {
    script::setFolder(folder);
    const std::string gamePath = folder + "/Data/DGDP.dat";
    const std::string prefsPath = folder + "/Data/DGDG.dat";
    for (const std::string& path : {gamePath, prefsPath}) {
        SCOPED_TRACE(path);
        const std::string gameFile = noise(600);
        const std::string prefsFile = noise(600);
        writeDataFile("DGDP.dat", gameFile);
        writeDataFile("DGDG.dat", prefsFile);
        fs::rename(path, path + ".kept");
        fs::create_symlink("/proc/self/mem", path);  // to read its first byte is an error
        resetSavedData();
        game.turns = 77;
        EXPECT_EQ(LoadSavedData(), 0);
        EXPECT_EQ(game.turns, 77);
        fs::rename(path + ".kept", path);
        SaveData();
        EXPECT_EQ(dataFile("DGDP.dat"), gameFile);
        EXPECT_EQ(dataFile("DGDG.dat"), prefsFile);
    }
}

TEST_F(SavedDataTest, DefaultsStandAtTheirOffsetsAndLeaveThePaddingAndTheUnusedFlags) {
    const auto image = [] { return std::string(reinterpret_cast<const char*>(&prefs), sizeof prefs); };
    std::memset(static_cast<void*>(&prefs), 0xFF, sizeof prefs);
    ApplyDefaults();
    const std::string upToTheFlags = "\2\0\0\0\1\0\0\0\0\0\0\0Alistair"s + std::string(13, '\0') +
                                     "\xFF\xFF\xFF\x81\x84\x1E\0\0\0\0\0\0\0\0\0"s;
    EXPECT_EQ(image(), upToTheFlags + "\x80\xFF\xFF\xFF");
    setSwitch(Switch::grief, true);
    setSwitch(Switch::skipText, true);
    EXPECT_EQ(image(), upToTheFlags + "\xC8\xFF\xFF\xFF");
}

TEST_F(SavedDataTest, NamesHoldTwentyCharactersAndAreFilledWithZeros) {
    std::array<char, 21> name;
    name.fill('x');
    EXPECT_EQ(nameText(name), std::string(20, 'x')) << "a damaged name has no end";
    storeName(name, "Abe");
    EXPECT_EQ(name, (std::array<char, 21>{'A', 'b', 'e'}));
    storeName(name, "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(std::string(name.data(), 21), "abcdefghijklmnopqrst\0"s);
}

}  // namespace gloomdeck
