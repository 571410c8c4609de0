// Files read whole and written whole, and what a path stands for.
#include "platform/files.h"

#include <algorithm>

#include "platform/disk.h"
#include "platform/file_system.h"
#include "platform/host.h"

namespace gloomdeck {

namespace {

using file_system::Kind;
using file_system::kindOf;

constexpr std::size_t largestFile = std::size_t{64} << 20;

// A link is followed, so that the file itself is replaced.
std::string resolved(const std::string& path) { return file_system::resolved(nativePath(path)); }

// Where the contents of a file stand that is named so.
std::string standing(const FilesTogether& together, const std::string& name) {
    const auto found = std::find(together.names.begin(), together.names.end(), name);
    if (found == together.names.end()) return name;
    return standingName(together.names, static_cast<std::size_t>(found - together.names.begin()));
}

// Also where it cannot be told.
bool isPlainFile(const std::string& name) {
    const Kind kind = kindOf(name);
    return kind == Kind::plainFile || kind == Kind::unknown;
}

std::optional<Bytes> wholeFile(const std::string& name) { return file_system::read(name, largestFile); }

// The file of that name, with the contents that stand at the place; not open where there can be none of that
// name, and none where there is one that cannot be read.
std::optional<File> opened(const std::string& name, const std::string& place) {
    if (isPlainFile(place)) {
        std::optional<Bytes> contents = wholeFile(place);
        if (!contents) return {};
        return File{.path = name, .contents = std::move(*contents)};
    }
    if (kindOf(name) != Kind::nothing || kindOf(folderOf(name)) != Kind::folder) return File{};
    return File{.path = name, .contents = {}, .changed = true};
}

}  // namespace

std::string programFolder() { return host::programFolder(); }

std::string nativePath(std::string path) {
    const std::string folder = programFolder();
    const auto own = static_cast<std::ptrdiff_t>(path.starts_with(folder) ? folder.size() : 0);
    std::replace(path.begin() + own, path.end(), '\\', '/');
    return path;
}

bool fileExists(const std::string& path) { return isPlainFile(resolved(path)); }

std::optional<Bytes> fileContents(const std::string& path) {
    const std::string name = nativePath(path);
    return isPlainFile(name) ? wholeFile(name) : std::nullopt;
}

File openFile(const std::string& path) {
    const std::string name = resolved(path);
    return opened(name, name).value_or(File{});
}

void closeFile(File& file) {
    if (file.changed) writeTogether({{.name = file.path, .contents = file.contents}});
    file = {};
}

FilesTogether::FilesTogether(const std::vector<std::string>& paths)
    : lock(folderOf(nativePath(paths.at(0)))), names(paths.size()) {
    std::transform(paths.begin(), paths.end(), names.begin(), resolved);
    clear = settleFiles(names);
    // What settling has put in its place can be resolved only now.
    std::transform(paths.begin(), paths.end(), names.begin(), resolved);
}

bool fileExists(const FilesTogether& together, const std::string& path) {
    return isPlainFile(standing(together, resolved(path)));
}

File openFile(FilesTogether& together, const std::string& path) {
    if (!together.clear) return {};
    const std::string name = resolved(path);
    std::optional<File> file = opened(name, standing(together, name));
    together.clear = file.has_value();
    return std::move(file).value_or(File{});
}

void closeTogether(const FilesTogether& together, std::span<File> files) {
    std::vector<NewContents> written;
    for (File& file : files) {
        if (file.changed) written.push_back({.name = file.path, .contents = std::move(file.contents)});
        file = {};
    }
    if (together.clear && !written.empty()) writeTogether(written);
}

}  // namespace gloomdeck
