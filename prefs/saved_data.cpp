#include "prefs/saved_data.h"

#include <optional>
#include <string>

#include "platform/files.h"
#include "prefs/prefs.h"
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

std::string dataFile(const char* base) { return programFolder() + "\\Data\\" + "D" + base; }

template <typename Record>
void readRecord(const char* base, Record& record) {
    record = {};
    File file = openFile(dataFile(base));
    readBytes(file, &record, sizeof record);
    closeFile(file);
}

template <typename Record>
void writeRecord(const char* base, const Record& record) {
    File file = openFile(dataFile(base));
    writeBytes(file, &record, sizeof record);
    closeFile(file);
}

void save(const GameState& state, Prefs preferences) {
    preferences.reserved = 0;
    writeRecord(gameBase, state);
    writeRecord(prefsBase, preferences);
}

}  // namespace

int LoadSavedData() {
    if (!fileExists(dataFile(gameBase)) || !fileExists(dataFile(prefsBase))) return 0;
    readRecord(gameBase, game);
    readRecord(prefsBase, prefs);
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
    prefs.goodStuff = prefs.fairlyEasy = prefs.obstacles = prefs.grief = 0;
    prefs.spellsSkills = prefs.restartSwitch = prefs.skipText = 0;
}

void SaveData() { save(game, prefs); }

void markSafePoint() { safePoint = SafePoint{game, prefs}; }

void saveSafePoint() {
    if (safePoint) save(safePoint->game, safePoint->prefs);
}

void forgetSafePoint() { safePoint.reset(); }

}  // namespace gloomdeck
