// One copy of the program at a time reads or writes a folder's files.
#pragma once

#include <cstdint>
#include <string>

namespace gloomdeck {

/// Holds a folder for as long as it lives. Another copy that holds it is waited for, two seconds at most: one
/// that has been stopped must not keep a game from being saved. Does nothing where there is no such folder or
/// the file system knows no locks; leaves nothing behind in any case.
struct FolderLock {
    explicit FolderLock(const std::string& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    std::intptr_t lock;  // what file_system::unlockFolder wants
};

}  // namespace gloomdeck
