#include "prefs/saved_data.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string littleEndian(std::int32_t value) {
    std::string bytes;
    for (int i = 0; i < 4; ++i)
        bytes.push_back(static_cast<char>(static_cast<std::uint32_t>(value) >> (8 * i)));
    return bytes;
}

std::string noise(unsigned seed, std::size_t length) {
    std::mt19937 random(seed);
    std::string bytes(length, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

template <typename Record>
std::string imageOf(const Record& record) {
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

}  // namespace

class SavedDataTest : public GameTest {
  protected:
    void SetUp() override {
        GameTest::SetUp();
        folder = makeProgramFolder();
        script::setFolder(folder);
        game = {};
        prefs = {};
    }

    std::string gameFile() const { return folder + "/Data/DGDP.dat"; }
    std::string prefsFile() const { return folder + "/Data/DGDG.dat"; }

    std::string folder;
};

TEST_F(SavedDataTest, BothFilesHoldEveryFieldAtItsOffset) {
    storeName(game.playerName, "Alistair");
    game.columns[6].cells[6] = 22;
    game.columns[6].finished = 1;
    game.inventory[8] = -12;
    game.campaignStage = 3;
    game.campaignWon = 1;
    game.scoreStanding = -1;
    std::string wanted(484, '\0');
    const auto put = [&wanted](std::size_t offset, const std::string& bytes) {
        wanted.replace(offset, bytes.size(), bytes);
    };
    put(0, "Alistair");
    put(24 + 6 * 44 + 8 + 4 * 6, littleEndian(22));
    put(24 + 6 * 44 + 40, littleEndian(1));
    put(376 + 4 * 8, littleEndian(-12));
    put(464, littleEndian(3));
    put(472, littleEndian(1));
    put(480, littleEndian(-1));
    ApplyDefaults();
    prefs.reserved = 77;
    prefs.scenarioOver = 1;
    prefs.grief = 1;
    prefs.skipText = 1;
    SaveData();
    EXPECT_EQ(bytesOf(gameFile()), wanted);
    wanted.assign(52, '\0');
    put(0, littleEndian(2));
    put(4, littleEndian(1));
    put(12, "Alistair");
    put(33, {1});
    put(36, littleEndian(2000001));
    put(48, littleEndian(0x48));
    EXPECT_EQ(bytesOf(prefsFile()), wanted);
}

TEST_F(SavedDataTest, AShortFileGivesWhatItHasAndZeroForTheRest) {
    const std::string bytes = noise(2, 484);
    for (const std::size_t length : {0U, 1U, 51U, 52U, 483U}) {
        game.inventory.fill(9);
        prefs.heroName.fill('x');
        write(gameFile(), bytes.substr(0, length));
        write(prefsFile(), bytes.substr(0, length / 10));
        EXPECT_EQ(LoadSavedData(), 1);
        EXPECT_EQ(imageOf(game), bytes.substr(0, length) + std::string(484 - length, '\0')) << length;
        EXPECT_EQ(imageOf(prefs), bytes.substr(0, length / 10) + std::string(52 - length / 10, '\0'));
    }
}

TEST_F(SavedDataTest, AnyBytesComeBackUnchangedAndLongFilesKeepTheirTails) {
    for (unsigned seed = 10; seed < 20; ++seed) {
        const std::string gameBytes = noise(seed, 484 + seed * 7);
        std::string prefsBytes = noise(seed + 100, 52 + seed);
        write(gameFile(), gameBytes);
        write(prefsFile(), prefsBytes);
        EXPECT_EQ(LoadSavedData(), 1);
        SaveData();
        prefsBytes.replace(8, 4, 4, '\0');  // the reserved field
        EXPECT_EQ(bytesOf(gameFile()), gameBytes);
        EXPECT_EQ(bytesOf(prefsFile()), prefsBytes);
    }
}

TEST_F(SavedDataTest, NothingIsWrittenWhereThereIsNoDataFolder) {
    std::filesystem::remove_all(folder + "/Data");
    SaveData();
    EXPECT_FALSE(std::filesystem::exists(folder + "/Data"));
    write(folder + "/Data", "a file");
    SaveData();
    EXPECT_EQ(bytesOf(folder + "/Data"), "a file");
    EXPECT_EQ(LoadSavedData(), 0);
}

TEST_F(SavedDataTest, DefaultsLeaveTheFlagsThePaddingAndTheGame) {
    std::memset(static_cast<void*>(&prefs), 0xFF, sizeof prefs);
    game.turns = 5;
    ApplyDefaults();
    EXPECT_EQ(prefs.GameSpeed, 2);
    EXPECT_EQ(prefs.currentScreen, 1);
    EXPECT_EQ(prefs.heroName, (std::array<char, 21>{'A', 'l', 'i', 's', 't', 'a', 'i', 'r'}));
    EXPECT_EQ(prefs.scenarioChoice, 0);
    EXPECT_EQ(prefs.campaignChoice, 0);
    EXPECT_EQ(imageOf(prefs).substr(33, 3), "\xFF\xFF\xFF");
    EXPECT_EQ(imageOf(prefs).substr(48), "\x80\xFF\xFF\xFF") << "the seven switches only";
    EXPECT_EQ(game.turns, 5);
}

TEST_F(SavedDataTest, NamesHoldTwentyCharactersAndAreFilledWithZeros) {
    std::array<char, 21> name;
    name.fill('x');
    EXPECT_EQ(nameText(name), std::string(20, 'x')) << "a damaged name has no end";
    storeName(name, "Abe");
    EXPECT_EQ(name, (std::array<char, 21>{'A', 'b', 'e'}));
    storeName(name, "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(nameText(name), "abcdefghijklmnopqrst");
    EXPECT_EQ(name[20], '\0');
}

}  // namespace gloomdeck
