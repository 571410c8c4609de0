// A folder's lock, waited for until it is free or has been waited for long enough.
#include "platform/folder_lock.h"

#include "platform/file_system.h"

namespace gloomdeck {

constexpr int longestWait = 2000;  // milliseconds

FolderLock::FolderLock(const std::string& folder) : lock(file_system::lockFolder(folder, longestWait)) {}

FolderLock::~FolderLock() { file_system::unlockFolder(lock); }

}  // namespace gloomdeck
