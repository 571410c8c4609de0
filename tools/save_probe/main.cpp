// Saves or loads the two files as the game does, for the tests of what a cut or an error leaves of them.
//
//   gloomdeck_save_probe save FOLDER BYTE   loads what is there, then saves records full of that byte
//   gloomdeck_save_probe load FOLDER...     for each: which byte fills both records; "none" without files,
//                                           "mixed" where the records are not of one save
//
// In a trace of system calls the work stands between two calls of chdir.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/host_script.h"
#include "prefs/prefs.h"
#include "prefs/saved_data.h"
#include "rules/game_state.h"

namespace gloomdeck::save_probe {

namespace {

bool mark() { return chdir("/") == 0; }

int save(const std::string& folder, int byte) {
    script::setFolder(folder);
    if (!mark()) return 1;
    if (LoadSavedData() == 0) ApplyDefaults();
    std::memset(static_cast<void*>(&game), byte, sizeof game);
    std::memset(static_cast<void*>(&prefs), byte, sizeof prefs);
    SaveData();
    return mark() ? 0 : 1;
}

template <typename Record>
bool isFullOf(char byte, const Record& record) {
    const std::string_view bytes(reinterpret_cast<const char*>(&record), sizeof record);
    return std::count(bytes.begin(), bytes.end(), byte) == static_cast<std::ptrdiff_t>(bytes.size());
}

std::string loaded(const std::string& folder) {
    script::setFolder(folder);
    if (LoadSavedData() == 0) return "none";
    const char byte = game.playerName[0];
    std::memset(&prefs.reserved, byte, sizeof prefs.reserved);  // is saved as zero
    return isFullOf(byte, game) && isFullOf(byte, prefs) ? std::to_string(byte) : "mixed";
}

}  // namespace

int run(int argc, char** argv) {
    const std::string_view command = argc > 2 ? argv[1] : "";
    if (command == "save" && argc == 4) return save(argv[2], std::atoi(argv[3]));
    if (command != "load") {
        std::fputs("usage: gloomdeck_save_probe save FOLDER BYTE | load FOLDER...\n", stderr);
        return 2;
    }
    if (!mark()) return 1;
    for (int i = 2; i < argc; ++i) std::printf("%s\n", loaded(argv[i]).c_str());
    return mark() ? 0 : 1;
}

}  // namespace gloomdeck::save_probe

int main(int argc, char** argv) { return gloomdeck::save_probe::run(argc, argv); }
