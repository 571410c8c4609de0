#include "platform/files.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "platform/host.h"

namespace gloomdeck {

namespace {

std::FILE* streamOf(File& file) { return static_cast<std::FILE*>(file.handle); }

}  // namespace

std::string programFolder() { return host::programFolder(); }

std::string nativePath(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

bool fileExists(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(nativePath(path), error);
}

File openFile(const std::string& path) {
    const std::string name = nativePath(path);
    for (const char* mode : {"r+b", fileExists(path) ? "rb" : "w+b"})
        if (std::FILE* stream = std::fopen(name.c_str(), mode)) return {.handle = stream};
    return {};
}

std::size_t readBytes(File& file, void* buffer, std::size_t count) {
    return file.handle ? std::fread(buffer, 1, count, streamOf(file)) : 0;
}

std::size_t writeBytes(File& file, const void* buffer, std::size_t count) {
    return file.handle ? std::fwrite(buffer, 1, count, streamOf(file)) : 0;
}

void closeFile(File& file) {
    if (file.handle) std::fclose(streamOf(file));
    file.handle = nullptr;
}

}  // namespace gloomdeck
