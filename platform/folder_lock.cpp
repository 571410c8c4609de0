// A folder's lock, tried again until it is free or has been waited for long enough.
#include "platform/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

namespace gloomdeck {

namespace {

constexpr int longestWait = 2000;  // milliseconds
constexpr int waitStep = 5;

bool isHeldElsewhere(int descriptor) {
    return ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR);
}

}  // namespace

FolderLock::FolderLock(const std::string& folder)
    : descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (descriptor < 0) return;
    constexpr timespec step{.tv_sec = 0, .tv_nsec = waitStep * 1'000'000L};
    for (int waited = 0; isHeldElsewhere(descriptor) && waited < longestWait; waited += waitStep)
        nanosleep(&step, nullptr);
}

FolderLock::~FolderLock() {
    if (descriptor >= 0) ::close(descriptor);
}

}  // namespace gloomdeck
