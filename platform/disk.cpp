// New files beside the old ones, flushed and renamed step by step.
#include "platform/disk.h"

#include <algorithm>

#include "platform/file_system.h"

namespace gloomdeck {

namespace {

using file_system::Found;
using file_system::Removed;
using file_system::Written;

// The first new file has a name of its own: as long as it is there, none has been renamed.
std::string besideName(const std::string& name, std::size_t index) {
    return name + (index == 0 ? ".new" : ".next");
}

bool flushFolderOf(const std::string& name) { return file_system::flushFolder(folderOf(name)); }

Written writeBeside(const NewContents& file, std::size_t index) {
    const Written written = file_system::writeNew(besideName(file.name, index), file.contents, file.name);
    return written == Written::done && !flushFolderOf(file.name) ? Written::failed : written;
}

Written writeAllBeside(const std::vector<NewContents>& files) {
    for (std::size_t i = 0; i < files.size(); ++i)
        if (const Written written = writeBeside(files[i], i); written != Written::done) return written;
    return Written::done;
}

bool overwriteFile(const NewContents& file) { return file_system::overwrite(file.name, file.contents); }

bool renameIntoPlace(const std::string& name, std::size_t index) {
    return file_system::rename(besideName(name, index), name);
}

// The last first, and each for good: as long as the first one is there, the others count for nothing.
bool removeBeside(const std::vector<std::string>& names) {
    for (std::size_t i = names.size(); i-- > 0;) {
        const Removed removed = file_system::remove(besideName(names[i], i));
        if (removed == Removed::no) return false;
        if (removed == Removed::yes && i > 0 && !flushFolderOf(names[i])) return false;
    }
    return true;
}

// After the first rename there is no way back: a new file that can neither be renamed nor copied stays for
// the next start.
void renameOthers(const std::vector<NewContents>& files) {
    bool flushed = flushFolderOf(files[0].name);
    for (std::size_t i = 1; i < files.size() && flushed; ++i) {
        const NewContents& file = files[i];
        if (!renameIntoPlace(file.name, i) && overwriteFile(file))
            file_system::remove(besideName(file.name, i));
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

std::string folderOf(const std::string& name) {
    const std::size_t end = name.rfind('/');
    return end == std::string::npos ? "" : name.substr(0, std::max<std::size_t>(end, 1));
}

void writeTogether(const std::vector<NewContents>& files) {
    const Written written = writeAllBeside(files);
    if (written == Written::done && renameIntoPlace(files[0].name, 0)) return renameOthers(files);
    if (removeBeside(namesOf(files)) && written != Written::failed)
        for (const NewContents& file : files) overwriteFile(file);
}

bool settleFiles(const std::vector<std::string>& names) {
    const Found first = file_system::find(besideName(names[0], 0));
    if (first == Found::yes) removeBeside(names);
    if (first != Found::no) return first == Found::yes;
    for (std::size_t i = 1; i < names.size(); ++i) {
        const Found next = file_system::find(besideName(names[i], i));
        if (next == Found::unknown) return false;
        if (next == Found::yes && flushFolderOf(names[i]) && renameIntoPlace(names[i], i))
            flushFolderOf(names[i]);
    }
    return true;
}

std::string standingName(const std::vector<std::string>& names, std::size_t index) {
    const std::string beside = besideName(names[index], index);
    const bool waits = index > 0 && file_system::find(besideName(names[0], 0)) == Found::no &&
                       file_system::find(beside) == Found::yes;
    return waits ? beside : names[index];
}

}  // namespace gloomdeck
