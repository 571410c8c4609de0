// Files read whole and written whole, and what a path stands for.
#include "platform/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "platform/descriptor.h"
#include "platform/disk.h"
#include "platform/host.h"

namespace gloomdeck {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t largestFile = std::size_t{64} << 20;

// A link is followed, so that the file itself is replaced.
std::string resolved(const std::string& path) {
    std::error_code error;
    const fs::path real = fs::canonical(nativePath(path), error);
    return error ? nativePath(path) : real.string();
}

// Where the contents of a file stand that is named so.
std::string standing(const FilesTogether& together, const std::string& name) {
    const auto found = std::find(together.names.begin(), together.names.end(), name);
    if (found == together.names.end()) return name;
    return standingName(together.names, static_cast<std::size_t>(found - together.names.begin()));
}

// Also where it cannot be told.
bool isPlainFile(const std::string& name) {
    std::error_code error;
    const fs::file_status status = fs::status(name, error);
    return fs::is_regular_file(status) || status.type() == fs::file_type::none;
}

std::optional<Bytes> wholeFile(const std::string& name) {
    const Descriptor file(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
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

// The file of that name, with the contents that stand at the place; not open where there can be none of that
// name, and none where there is one that cannot be read.
std::optional<File> opened(const std::string& name, const std::string& place) {
    if (isPlainFile(place)) {
        std::optional<Bytes> contents = wholeFile(place);
        if (!contents) return {};
        return File{.path = name, .contents = std::move(*contents)};
    }
    std::error_code error;
    if (fs::exists(name, error) || !fs::is_directory(fs::path(name).parent_path(), error)) return File{};
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
    : lock(fs::path(nativePath(paths.at(0))).parent_path().string()), names(paths.size()) {
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
