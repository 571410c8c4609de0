// The program's folder and whole-record binary files. Paths may use "\" as separator.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/bytes.h"
#include "platform/folder_lock.h"

namespace gloomdeck {

/// The folder of the running program, without a trailing separator.
std::string programFolder();

/// True also where it cannot be told.
bool fileExists(const std::string& path);

/// The path as the system writes it; the program's own folder may have "\" in its name.
std::string nativePath(std::string path);

/// The whole file; none when it is missing, no plain file, cannot be read, or larger than 64 MiB, which no
/// file of ours could be.
std::optional<Bytes> fileContents(const std::string& path);

/// An open file: its contents as they are to be when it is closed. Not open while the path is empty.
struct File {
    std::string path;
    Bytes contents;
    std::size_t position = 0;
    bool changed = false;
};

/// Opens for reading and writing; what does not exist is created when it is closed. Where it cannot be opened
/// the other operations do nothing.
File openFile(const std::string& path);

bool isOpen(const File& file);

/// Transfers at most count bytes at the current position; the answer is how many were.
std::size_t readBytes(File& file, void* buffer, std::size_t count);
std::size_t writeBytes(File& file, const void* buffer, std::size_t count);

/// Brings what was written to the disk: a cut at any moment leaves the file wholly old or wholly new, where
/// the folder takes a new file; where it takes none, the old file is written in place. A failure leaves the
/// old file and reports nothing.
void closeFile(File& file);

// The same for files of one folder of which a cut must leave all old or all new.

/// For as long as it lives, another copy of the program waits that does the same. What a cut has left half
/// done is finished first.
struct FilesTogether {
    explicit FilesTogether(const std::vector<std::string>& paths);

    FolderLock lock;
    std::vector<std::string> names;  ///< as the system writes them, in the order of the paths
    bool clear = true;               ///< it can be told what stands, and what was opened could be read
};

bool fileExists(const FilesTogether& together, const std::string& path);

/// Opens one of them; none any more once they are not clear.
File openFile(FilesTogether& together, const std::string& path);

/// Brings what was written to these files to the disk as one, in the order of the paths; writes none where
/// they are not clear.
void closeTogether(const FilesTogether& together, std::span<File> files);

}  // namespace gloomdeck
