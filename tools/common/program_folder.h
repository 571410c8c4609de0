// The folder that a program under test runs in, and what it leaves there.
#pragma once

#include <string>

#include "platform/files.h"

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

    std::string path;
};

/// The bytes of the two saved files; empty where there is none.
struct SavedFiles {
    Bytes game;
    Bytes prefs;
};

SavedFiles savedFiles(const ProgramFolder& folder);

/// What is wrong with the two files after a run that has just ended, compared with the records and, behind
/// these, with what the files were before it; empty when nothing is.
std::string savedFault(const ProgramFolder& folder, const SavedFiles& before);

}  // namespace gloomdeck
