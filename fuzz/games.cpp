#include "fuzz/games.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "content/campaigns.h"
#include "content/game_flow.h"
#include "content/locations.h"
#include "content/scenarios.h"
#include "platform/random.h"
#include "prefs/prefs.h"
#include "prefs/saved_data.h"
#include "prefs/switches.h"
#include "rules/board.h"
#include "rules/game_state.h"
#include "tests/support/reset.h"

namespace gloomdeck::fuzz {

namespace {

constexpr int highestSkill = 95;

template <typename Record>
Bytes bytesOf(const Record& record) {
    const auto* const first = reinterpret_cast<const std::uint8_t*>(&record);
    return {first, first + sizeof record};
}

void put(const std::string& path, const Bytes& contents) {
    if (contents.empty()) return;
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(contents.data()), static_cast<std::streamsize>(contents.size()));
}

void chooseGame(InputBytes& bytes) {
    const int choice = bytes.below(campaignCount + scenarioTableSize);
    prefs.campaignChoice = choice < campaignCount ? choice : none;
    prefs.scenarioChoice = choice < campaignCount ? 0 : choice - campaignCount;
}

void equipHero(InputBytes& bytes) {
    const int riches = bytes.byte();
    const int skill = std::min(bytes.byte(), highestSkill);
    const int turns = bytes.byte();
    for (int item = 0; item < itemCount; ++item) count(item) = riches;
    for (int i = 0; i < skillCount; ++i) level(i) = skill;
    for (int power = 0; power < powerCount; ++power) turnsLeft(power) = (turns >> power) % 4;
}

// The End is that many tiles above the board, or far off.
void shortenColumns(InputBytes& bytes) {
    const int above = bytes.byte();
    if (above >= 16) return;
    for (int col = 0; col < columnCount; ++col)
        column(col).drawn = std::max(0, locationRow(column(col).location).deckLength - rowCount - 1 - above);
}

void setSwitches(InputBytes& bytes) {
    prefs.switches = static_cast<std::uint32_t>(bytes.byte()) & everySwitch;
}

}  // namespace

void dealGame(InputBytes& bytes) {
    forgetProgram();
    ApplyDefaults();
    chooseGame(bytes);
    randomize(bytes.byte());
    setSwitch(Switch::skipText, true);  // without a window no story is told
    startNewGame();
    equipHero(bytes);
    shortenColumns(bytes);
    setSwitches(bytes);
    prefs.GameSpeed = bytes.below(speedCount);
    prefs.currentScreen = screen_id::play;
}

SavedFiles filesOfRecords() { return {.game = bytesOf(game), .prefs = bytesOf(prefs)}; }

void putFiles(const ProgramFolder& folder, const SavedFiles& files) {
    clearFiles(folder);
    put(folder.gameFile(), files.game);
    put(folder.prefsFile(), files.prefs);
}

void putLeftovers(const ProgramFolder& folder, const SavedFiles& files) {
    put(folder.newGameFile(), files.game);
    put(folder.nextPrefsFile(), files.prefs);
}

void clearFiles(const ProgramFolder& folder) {
    for (const auto& entry : std::filesystem::directory_iterator(folder.path + "/Data"))
        std::filesystem::remove_all(entry);
}

}  // namespace gloomdeck::fuzz
