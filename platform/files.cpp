#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "platform/host.h"

namespace gloomdeck {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t largestFile = std::size_t{64} << 20;
constexpr mode_t newFileMode = 0666;  // less what the user's mask takes away

// A file's descriptor, closed at the end of the scope.
struct Descriptor {
    explicit Descriptor(int descriptor) : number(descriptor) {}
    ~Descriptor() {
        if (number >= 0) ::close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number;
};

bool writeWhole(int descriptor, const Bytes& contents) {
    std::size_t done = 0;
    while (done < contents.size()) {
        const ssize_t put = ::write(descriptor, contents.data() + done, contents.size() - done);
        if (put < 0 && errno != EINTR) return false;
        if (put > 0) done += static_cast<std::size_t>(put);
    }
    return ::fsync(descriptor) == 0;
}

// A new file takes over who may read the old one.
void copyMode(const std::string& from, int to) {
    struct stat old {};
    if (::stat(from.c_str(), &old) == 0 && ::fchmod(to, old.st_mode & 07777) != 0) errno = 0;
}

void flushFolder(const fs::path& folder) {
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.number >= 0) ::fsync(opened.number);
}

enum class Outcome { done, failed, noNewFile };

Outcome writeBeside(const std::string& name, const std::string& beside, const Bytes& contents) {
    const Descriptor file(::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, newFileMode));
    if (file.number < 0) return Outcome::noNewFile;
    copyMode(name, file.number);
    return writeWhole(file.number, contents) ? Outcome::done : Outcome::failed;
}

Outcome replaceFile(const std::string& name, const Bytes& contents) {
    const std::string beside = name + ".new";
    const Outcome written = writeBeside(name, beside, contents);
    if (written == Outcome::done && std::rename(beside.c_str(), name.c_str()) == 0) {
        flushFolder(fs::path(name).parent_path());
        return Outcome::done;
    }
    if (written != Outcome::noNewFile) ::unlink(beside.c_str());
    return written == Outcome::noNewFile ? written : Outcome::failed;
}

void overwriteFile(const std::string& name, const Bytes& contents) {
    const Descriptor file(::open(name.c_str(), O_WRONLY | O_CLOEXEC));
    if (file.number >= 0) writeWhole(file.number, contents);
}

// A link is followed, so that the file itself is replaced.
std::string resolved(const std::string& path) {
    std::error_code error;
    const fs::path real = fs::canonical(nativePath(path), error);
    return error ? nativePath(path) : real.string();
}

}  // namespace

std::string programFolder() { return host::programFolder(); }

std::string nativePath(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

bool fileExists(const std::string& path) {
    std::error_code error;
    return fs::is_regular_file(nativePath(path), error);
}

std::optional<Bytes> fileContents(const std::string& path) {
    if (!fileExists(path)) return {};
    const Descriptor file(::open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC));
    if (file.number < 0) return {};
    Bytes contents;
    Bytes block(65536);
    while (true) {
        const ssize_t got = ::read(file.number, block.data(), block.size());
        if (got == 0) return contents;
        if (got < 0 && errno == EINTR) continue;
        if (got < 0 || contents.size() + static_cast<std::size_t>(got) > largestFile) return {};
        contents.insert(contents.end(), block.begin(), block.begin() + got);
    }
}

File openFile(const std::string& path) {
    const std::string name = resolved(path);
    std::error_code error;
    if (!fs::exists(name, error)) {
        if (!fs::is_directory(fs::path(name).parent_path(), error)) return {};
        return {.path = name, .contents = {}, .changed = true};
    }
    std::optional<Bytes> contents = fileContents(name);
    if (!contents) return {};
    return {.path = name, .contents = std::move(*contents)};
}

std::size_t readBytes(File& file, void* buffer, std::size_t count) {
    const std::size_t got = std::min(count, file.contents.size() - file.position);
    if (got > 0) std::memcpy(buffer, file.contents.data() + file.position, got);
    file.position += got;
    return got;
}

std::size_t writeBytes(File& file, const void* buffer, std::size_t count) {
    if (file.path.empty() || count == 0) return 0;
    const std::size_t end = file.position + count;
    if (file.contents.size() < end) file.contents.resize(end);
    std::memcpy(file.contents.data() + file.position, buffer, count);
    file.position = end;
    file.changed = true;
    return count;
}

void closeFile(File& file) {
    if (file.changed && replaceFile(file.path, file.contents) == Outcome::noNewFile)
        overwriteFile(file.path, file.contents);
    file = {};
}

}  // namespace gloomdeck
