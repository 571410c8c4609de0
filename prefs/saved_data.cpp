// Both records to their files and back, and the safe point between moves.
#include "prefs/saved_data.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "prefs/prefs.h"
#include "prefs/switches.h"
#include "rules/game_state.h"

namespace gloomdeck {

namespace {

constexpr const char* gameBase = "GDP.dat";
constexpr const char* prefsBase = "GDG.dat";

struct SafePoint {
    GameState game;
    Prefs prefs;
};

std::optional<SafePoint> safePoint;
bool filesAreUnreadable = false;  // an error of the disk perhaps: what they hold is kept

std::string dataFile(const char* base) { return programFolder() + "\\Data\\" + "D" + base; }

template <typename Record>
bool readRecord(FilesTogether& both, const char* base, Record& record) {
    record = {};
    File file = openFile(both, dataFile(base));
    readBytes(file, &record, sizeof record);
    return isOpen(file);
}

std::vector<std::string> bothFiles() { return {dataFile(gameBase), dataFile(prefsBase)}; }

void save(const GameState& state, Prefs preferences) {
    if (filesAreUnreadable) return;
    preferences.reserved = 0;
    FilesTogether both(bothFiles());
    std::array files{openFile(both, dataFile(gameBase)), openFile(both, dataFile(prefsBase))};
    writeBytes(files[0], &state, sizeof state);
    writeBytes(files[1], &preferences, sizeof preferences);
    closeTogether(both, files);
}

}  // namespace

int LoadSavedData() {
    FilesTogether both(bothFiles());
    if (!fileExists(both, dataFile(gameBase)) || !fileExists(both, dataFile(prefsBase))) return 0;
    SafePoint saved;
    filesAreUnreadable = !readRecord(both, gameBase, saved.game) || !readRecord(both, prefsBase, saved.prefs);
    if (filesAreUnreadable) return 0;
    game = saved.game;
    prefs = saved.prefs;
    return 1;
}

void ApplyDefaults() {
    prefs.GameSpeed = 2;
    prefs.currentScreen = screen_id::selection;
    prefs.reserved = 0;
    storeName(prefs.heroName, "Alistair");
    prefs.spare = 2000001;
    prefs.scenarioChoice = 0;
    prefs.campaignChoice = 0;
    prefs.switches = (prefs.switches & ~everySwitch) | switchesWith(&SwitchType::onAtFirst);
}

void SaveData() { save(game, prefs); }

void markSafePoint() { safePoint = SafePoint{game, prefs}; }

void saveSafePoint() {
    if (safePoint) save(safePoint->game, safePoint->prefs);
}

void resetSavedData() {
    safePoint.reset();
    filesAreUnreadable = false;
}

}  // namespace gloomdeck
