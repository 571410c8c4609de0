#include "prefs/saved_data.h"

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
bool readRecord(const char* base, Record& record) {
    record = {};
    File file = openFile(dataFile(base));
    const bool opened = isOpen(file);
    readBytes(file, &record, sizeof record);
    closeFile(file);
    return opened;
}

template <typename Record>
void writeRecord(const char* base, const Record& record) {
    File file = openFile(dataFile(base));
    writeBytes(file, &record, sizeof record);
    closeFile(file);
}

std::vector<std::string> bothFiles() { return {dataFile(gameBase), dataFile(prefsBase)}; }

void save(const GameState& state, Prefs preferences) {
    if (filesAreUnreadable) return;
    preferences.reserved = 0;
    const FilesTogether both(bothFiles());
    writeRecord(gameBase, state);
    writeRecord(prefsBase, preferences);
}

}  // namespace

int LoadSavedData() {
    const FilesTogether both(bothFiles());
    if (!fileExists(dataFile(gameBase)) || !fileExists(dataFile(prefsBase))) return 0;
    SafePoint saved;
    filesAreUnreadable = !readRecord(gameBase, saved.game) || !readRecord(prefsBase, saved.prefs);
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
