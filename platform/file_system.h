// The seam to the system's files: each kind of system has one source behind it, chosen at link time. Names
// are absolute and in UTF-8; folders end without a separator.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/bytes.h"

namespace gloomdeck::file_system {

enum class Kind { nothing, plainFile, folder, other, unknown };

/// What has that name; links are followed.
Kind kindOf(const std::string& name);

enum class Found { yes, no, unknown };

/// Whether anything has that name, be it a link that leads nowhere.
Found find(const std::string& name);

/// The name without links; the name itself where nothing has it.
std::string resolved(const std::string& name);

/// The whole file; none where it cannot be read or is larger than so many bytes.
std::optional<Bytes> read(const std::string& name, std::size_t most);

enum class Written { done, failed, noNewFile };

/// Makes or empties a file and brings the contents to the disk. Who may read the other file may read it too.
Written writeNew(const std::string& name, const Bytes& contents, const std::string& readableAs);

/// Writes from the start of a file that is there, whose tail stays, and brings it to the disk; false on
/// failure.
bool overwrite(const std::string& name, const Bytes& contents);

/// In one step; what had the other name is gone then. False where nothing was done.
bool rename(const std::string& from, const std::string& to);

enum class Removed { yes, nothingThere, no };

/// A folder counts as nothing.
Removed remove(const std::string& name);

/// Brings the names in a folder to the disk; false when that has failed, true where it cannot be asked for.
bool flushFolder(const std::string& folder);

/// Holds a folder for this process alone, waiting for others that hold it, and answers what unlockFolder
/// wants. Holds nothing where there is no such folder, the file system knows no locks, or all that time has
/// passed.
std::intptr_t lockFolder(const std::string& folder, int milliseconds);
void unlockFolder(std::intptr_t lock);

}  // namespace gloomdeck::file_system
