// The folder that a program under test runs in, and what it leaves there.
#pragma once

#include <string>

#include "platform/bytes.h"

namespace gloomdeck {

/// A new folder with an empty Data folder, removed with all that is in it at the end of the scope. Throws
/// std::runtime_error where none can be made.
struct ProgramFolder {
    /// With a folder of picture files the program finds them as its own.
    explicit ProgramFolder(const std::string& pictures = "");
    ~ProgramFolder();
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    std::string gameFile() const { return path + "/Data/DGDP.dat"; }
    std::string prefsFile() const { return path + "/Data/DGDG.dat"; }
    std::string newGameFile() const { return gameFile() + ".new"; }
    std::string nextPrefsFile() const { return prefsFile() + ".next"; }

    std::string path;
};

struct SavedFiles {
    Bytes game;
    Bytes prefs;
};

/// The bytes of the two saved files; empty where there is none. Preferences that a cut has left to be renamed
/// count as the file itself, as they do for the next start.
SavedFiles savedFiles(const ProgramFolder& folder);

/// What is wrong with the two files after a run that has just ended, compared with the records and, behind
/// these, with what the files were before it; empty when nothing is.
std::string savedFault(const ProgramFolder& folder, const SavedFiles& before);

}  // namespace gloomdeck
