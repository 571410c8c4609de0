// The system's files where the system keeps to POSIX.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>

#include "platform/file_system.h"

namespace gloomdeck::file_system {

namespace {

constexpr mode_t newFileMode = 0666;  // less what the user's mask takes away
constexpr int waitStep = 5;           // milliseconds

// A file's descriptor, closed at the end of the scope; a negative number stands for none.
struct Descriptor {
    explicit Descriptor(int descriptor) : number(descriptor) {}
    ~Descriptor() {
        if (number >= 0) ::close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number;
};

// A signal ends no call for good.
template <typename Call>
int untilDone(Call call) {
    int answer = call();
    while (answer < 0 && errno == EINTR) answer = call();
    return answer;
}

int openAs(const std::string& name, int flags) {
    return untilDone([&] { return ::open(name.c_str(), flags | O_CLOEXEC, newFileMode); });
}

bool writeWhole(int descriptor, const Bytes& contents) {
    std::size_t done = 0;
    while (done < contents.size()) {
        const ssize_t put = ::write(descriptor, contents.data() + done, contents.size() - done);
        if (put < 0 && errno != EINTR) return false;
        if (put > 0) done += static_cast<std::size_t>(put);
    }
    return untilDone([=] { return ::fsync(descriptor); }) == 0;
}

void copyMode(const std::string& from, int to) {
    struct stat old {};
    if (::stat(from.c_str(), &old) == 0 && ::fchmod(to, old.st_mode & 07777) != 0) errno = 0;
}

bool isHeldElsewhere(int descriptor) {
    return ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR);
}

}  // namespace

Kind kindOf(const std::string& name) {
    struct stat found {};
    if (::stat(name.c_str(), &found) != 0)
        return errno == ENOENT || errno == ENOTDIR ? Kind::nothing : Kind::unknown;
    if (S_ISREG(found.st_mode)) return Kind::plainFile;
    return S_ISDIR(found.st_mode) ? Kind::folder : Kind::other;
}

Found find(const std::string& name) {
    struct stat found {};
    if (::lstat(name.c_str(), &found) == 0) return Found::yes;
    return errno == ENOENT ? Found::no : Found::unknown;
}

std::string resolved(const std::string& name) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(name.c_str(), nullptr), std::free);
    return real ? real.get() : name;
}

std::optional<Bytes> read(const std::string& name, std::size_t most) {
    const Descriptor file(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.number < 0) return {};
    Bytes contents;
    Bytes block(65536);
    while (true) {
        const ssize_t got = ::read(file.number, block.data(), block.size());
        if (got == 0) return contents;
        if (got < 0 && errno == EINTR) continue;
        if (got < 0 || contents.size() + static_cast<std::size_t>(got) > most) return {};
        contents.insert(contents.end(), block.begin(), block.begin() + got);
    }
}

Written writeNew(const std::string& name, const Bytes& contents, const std::string& readableAs) {
    const Descriptor file(openAs(name, O_WRONLY | O_CREAT | O_TRUNC));
    if (file.number < 0) return Written::noNewFile;
    copyMode(readableAs, file.number);
    return writeWhole(file.number, contents) ? Written::done : Written::failed;
}

bool overwrite(const std::string& name, const Bytes& contents) {
    const Descriptor file(openAs(name, O_WRONLY));
    return file.number >= 0 && writeWhole(file.number, contents);
}

bool rename(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

Removed remove(const std::string& name) {
    if (::unlink(name.c_str()) == 0) return Removed::yes;
    return errno == ENOENT || errno == EISDIR ? Removed::nothingThere : Removed::no;
}

// Not every file system can flush a folder; those that can must not fail to.
bool flushFolder(const std::string& folder) {
    const Descriptor opened(openAs(folder, O_RDONLY | O_DIRECTORY));
    return opened.number < 0 || untilDone([&] { return ::fsync(opened.number); }) == 0 || errno == EINVAL;
}

std::intptr_t lockFolder(const std::string& folder, int milliseconds) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return descriptor;
    constexpr timespec step{.tv_sec = 0, .tv_nsec = waitStep * 1'000'000L};
    for (int waited = 0; isHeldElsewhere(descriptor) && waited < milliseconds; waited += waitStep)
        nanosleep(&step, nullptr);
    return descriptor;
}

void unlockFolder(std::intptr_t lock) {
    if (lock >= 0) ::close(static_cast<int>(lock));
}

}  // namespace gloomdeck::file_system
