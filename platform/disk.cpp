// New files beside the old ones, flushed and renamed step by step.
#include "platform/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "platform/descriptor.h"

namespace gloomdeck {

namespace {

namespace fs = std::filesystem;

constexpr mode_t newFileMode = 0666;  // less what the user's mask takes away

// The first new file has a name of its own: as long as it is there, none has been renamed.
std::string besideName(const std::string& name, std::size_t index) {
    return name + (index == 0 ? ".new" : ".next");
}

// A signal ends no call for good.
template <typename Call>
int untilDone(Call call) {
    int answer = call();
    while (answer < 0 && errno == EINTR) answer = call();
    return answer;
}

enum class Found { yes, no, unknown };

Found find(const std::string& name) {
    struct stat found {};
    if (::lstat(name.c_str(), &found) == 0) return Found::yes;
    return errno == ENOENT ? Found::no : Found::unknown;
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

// A new file takes over who may read the old one.
void copyMode(const std::string& from, int to) {
    struct stat old {};
    if (::stat(from.c_str(), &old) == 0 && ::fchmod(to, old.st_mode & 07777) != 0) errno = 0;
}

// Not every file system can flush a folder; those that can must not fail to.
bool flushFolderOf(const std::string& name) {
    const std::string folder = fs::path(name).parent_path().string();
    const Descriptor opened(
        untilDone([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    return opened.number < 0 || untilDone([&] { return ::fsync(opened.number); }) == 0 || errno == EINVAL;
}

enum class Outcome { done, failed, noNewFile };

Outcome writeBeside(const NewContents& file, std::size_t index) {
    const std::string beside = besideName(file.name, index);
    const Descriptor opened(untilDone(
        [&] { return ::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, newFileMode); }));
    if (opened.number < 0) return Outcome::noNewFile;
    copyMode(file.name, opened.number);
    return writeWhole(opened.number, file.contents) && flushFolderOf(file.name) ? Outcome::done
                                                                                : Outcome::failed;
}

Outcome writeAllBeside(const std::vector<NewContents>& files) {
    for (std::size_t i = 0; i < files.size(); ++i)
        if (const Outcome outcome = writeBeside(files[i], i); outcome != Outcome::done) return outcome;
    return Outcome::done;
}

bool overwriteFile(const NewContents& file) {
    const Descriptor opened(untilDone([&] { return ::open(file.name.c_str(), O_WRONLY | O_CLOEXEC); }));
    return opened.number >= 0 && writeWhole(opened.number, file.contents);
}

bool renameIntoPlace(const std::string& name, std::size_t index) {
    return std::rename(besideName(name, index).c_str(), name.c_str()) == 0;
}

// The last first, and each for good: as long as the first one is there, the others count for nothing.
bool removeBeside(const std::vector<std::string>& names) {
    for (std::size_t i = names.size(); i-- > 0;) {
        if (::unlink(besideName(names[i], i).c_str()) != 0) {
            if (errno != ENOENT && errno != EISDIR) return false;
        } else if (i > 0 && !flushFolderOf(names[i])) {
            return false;
        }
    }
    return true;
}

// After the first rename there is no way back: a new file that can neither be renamed nor copied stays for
// the next start.
void renameOthers(const std::vector<NewContents>& files) {
    bool flushed = flushFolderOf(files[0].name);
    for (std::size_t i = 1; i < files.size() && flushed; ++i) {
        const NewContents& file = files[i];
        if (!renameIntoPlace(file.name, i) && overwriteFile(file)) ::unlink(besideName(file.name, i).c_str());
        flushed = flushFolderOf(file.name);
    }
}

std::vector<std::string> namesOf(const std::vector<NewContents>& files) {
    std::vector<std::string> names(files.size());
    std::transform(files.begin(), files.end(), names.begin(),
                   [](const NewContents& file) { return file.name; });
    return names;
}

}  // namespace

void writeTogether(const std::vector<NewContents>& files) {
    const Outcome outcome = writeAllBeside(files);
    if (outcome == Outcome::done && renameIntoPlace(files[0].name, 0)) return renameOthers(files);
    if (removeBeside(namesOf(files)) && outcome != Outcome::failed)
        for (const NewContents& file : files) overwriteFile(file);
}

bool settleFiles(const std::vector<std::string>& names) {
    const Found first = find(besideName(names[0], 0));
    if (first == Found::yes) removeBeside(names);
    if (first != Found::no) return first == Found::yes;
    for (std::size_t i = 1; i < names.size(); ++i) {
        const Found next = find(besideName(names[i], i));
        if (next == Found::unknown) return false;
        if (next == Found::yes && flushFolderOf(names[i]) && renameIntoPlace(names[i], i))
            flushFolderOf(names[i]);
    }
    return true;
}

std::string standingName(const std::vector<std::string>& names, std::size_t index) {
    const std::string beside = besideName(names[index], index);
    const bool waits = index > 0 && find(besideName(names[0], 0)) == Found::no && find(beside) == Found::yes;
    return waits ? beside : names[index];
}

}  // namespace gloomdeck
