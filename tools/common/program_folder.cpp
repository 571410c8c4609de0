#include "tools/common/program_folder.h"

#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "platform/files.h"
#include "prefs/prefs.h"
#include "rules/game_state.h"

namespace gloomdeck {

namespace {

// A record takes the place of a file's beginning.
template <typename Record>
Bytes overwritten(Bytes file, const Record& record) {
    if (file.size() < sizeof record) file.resize(sizeof record);
    std::memcpy(file.data(), &record, sizeof record);
    return file;
}

}  // namespace

ProgramFolder::ProgramFolder(const std::string& pictures)
    : path((std::filesystem::temp_directory_path() / "gloomdeck-run-XXXXXX").string()) {
    if (!mkdtemp(path.data())) throw std::runtime_error("no temporary folder");
    std::filesystem::create_directories(path + "/Data");
    if (!pictures.empty())
        std::filesystem::create_directory_symlink(std::filesystem::absolute(pictures), path + "/gfx");
}

ProgramFolder::~ProgramFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

SavedFiles savedFiles(const ProgramFolder& folder) {
    const bool nextWaits = fileExists(folder.nextPrefsFile()) && !fileExists(folder.newGameFile());
    const std::string prefsFile = nextWaits ? folder.nextPrefsFile() : folder.prefsFile();
    return {.game = fileContents(folder.gameFile()).value_or(Bytes{}),
            .prefs = fileContents(prefsFile).value_or(Bytes{})};
}

std::string savedFault(const ProgramFolder& folder, const SavedFiles& before) {
    Prefs written = prefs;
    written.reserved = 0;
    const SavedFiles now = savedFiles(folder);
    if (now.game != overwritten(before.game, game)) return "the saved game is not the one played";
    if (now.prefs != overwritten(before.prefs, written))
        return "the saved preferences are not those of the run";
    return {};
}

}  // namespace gloomdeck
