// Files in a browser page: the pictures lie in the module, the two records with the page (host_web.js).
// Nothing here can be cut half-way, so that nothing has to be settled or locked.
#include <array>
#include <cstdint>
#include <string_view>

#include "platform/files.h"
#include "platform/host.h"

extern "C" {
int gloomdeckRecordSize(const char* name);
void gloomdeckReadRecord(const char* name, std::uint8_t* to);
void gloomdeckWriteRecord(const char* name, const std::uint8_t* from, int size);

// Of pictures_web.S.
extern const std::uint8_t pictureTiles[], pictureTiles2[], pictureTiles3[], pictureTitle[];
extern const std::uint8_t pictureTilesEnd[], pictureTiles2End[], pictureTiles3End[], pictureTitleEnd[];
}

namespace gloomdeck {

namespace {

constexpr int noRecord = -1;
constexpr int noLock = -1;

struct Picture {
    std::string_view name;
    const std::uint8_t* begin;
    const std::uint8_t* end;
};

const std::array pictures{Picture{"dtiles.bmp", pictureTiles, pictureTilesEnd},
                          Picture{"dtiles2.bmp", pictureTiles2, pictureTiles2End},
                          Picture{"dtiles3.bmp", pictureTiles3, pictureTiles3End},
                          Picture{"dtitle.bmp", pictureTitle, pictureTitleEnd}};

std::string baseName(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

const Picture* pictureNamed(std::string_view name) {
    for (const Picture& picture : pictures)
        if (picture.name == name) return &picture;
    return nullptr;
}

}  // namespace

std::string programFolder() { return host::programFolder(); }

std::string nativePath(std::string path) { return path; }

bool fileExists(const std::string& path) {
    const std::string name = baseName(path);
    return pictureNamed(name) != nullptr || gloomdeckRecordSize(name.c_str()) != noRecord;
}

std::optional<Bytes> fileContents(const std::string& path) {
    const Picture* picture = pictureNamed(baseName(path));
    if (picture == nullptr) return {};
    return Bytes(picture->begin, picture->end);
}

File openFile(const std::string& path) {
    File file{.path = baseName(path)};
    const int size = gloomdeckRecordSize(file.path.c_str());
    file.changed = size == noRecord;
    if (size > 0) file.contents.resize(static_cast<std::size_t>(size));
    if (size > 0) gloomdeckReadRecord(file.path.c_str(), file.contents.data());
    return file;
}

void closeFile(File& file) {
    if (file.changed)
        gloomdeckWriteRecord(file.path.c_str(), file.contents.data(), static_cast<int>(file.contents.size()));
    file = {};
}

FolderLock::FolderLock(const std::string& /*folder*/) : lock(noLock) {}
FolderLock::~FolderLock() { lock = noLock; }

FilesTogether::FilesTogether(const std::vector<std::string>& paths)
    : lock({}), names(paths.begin(), paths.end()) {}

bool fileExists(const FilesTogether& /*together*/, const std::string& path) { return fileExists(path); }

File openFile(FilesTogether& /*together*/, const std::string& path) { return openFile(path); }

void closeTogether(const FilesTogether& /*together*/, std::span<File> files) {
    for (File& file : files) closeFile(file);
}

}  // namespace gloomdeck
