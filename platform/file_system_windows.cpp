// The system's files where the system is Windows. Its names are wide; its separators may be of either kind.
#include <windows.h>

#include <algorithm>

#include "platform/file_system.h"
#include "platform/wide_text.h"

namespace gloomdeck::file_system {

namespace {

constexpr DWORD blockSize = 65536;
constexpr DWORD everyShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// A file's handle, closed at the end of the scope.
struct Handle {
    explicit Handle(HANDLE opened) : handle(opened) {}
    ~Handle() {
        if (isOpen()) CloseHandle(handle);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool isOpen() const { return handle != INVALID_HANDLE_VALUE; }

    HANDLE handle;
};

HANDLE openAs(const std::string& name, DWORD access, DWORD how) {
    return CreateFileW(wide(name).c_str(), access, everyShare, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool nothingWasThere() {
    const DWORD error = GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME;
}

bool writeWhole(const Handle& file, const Bytes& contents) {
    for (std::size_t done = 0; done < contents.size();) {
        const auto count = static_cast<DWORD>(std::min<std::size_t>(contents.size() - done, blockSize));
        DWORD put = 0;
        if (!WriteFile(file.handle, contents.data() + done, count, &put, nullptr)) return false;
        done += put;
    }
    return FlushFileBuffers(file.handle) != 0;
}

}  // namespace

Kind kindOf(const std::string& name) {
    const DWORD attributes = GetFileAttributesW(wide(name).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return nothingWasThere() ? Kind::nothing : Kind::unknown;
    if (attributes & FILE_ATTRIBUTE_DIRECTORY) return Kind::folder;
    return attributes & FILE_ATTRIBUTE_DEVICE ? Kind::other : Kind::plainFile;
}

Found find(const std::string& name) {
    if (GetFileAttributesW(wide(name).c_str()) != INVALID_FILE_ATTRIBUTES) return Found::yes;
    return nothingWasThere() ? Found::no : Found::unknown;
}

// Links are rare here, and making one takes rights that a player seldom has.
std::string resolved(const std::string& name) { return name; }

std::optional<Bytes> read(const std::string& name, std::size_t most) {
    const Handle file(openAs(name, GENERIC_READ, OPEN_EXISTING));
    if (!file.isOpen()) return {};
    Bytes contents;
    Bytes block(blockSize);
    while (true) {
        DWORD got = 0;
        if (!ReadFile(file.handle, block.data(), blockSize, &got, nullptr)) return {};
        if (got == 0) return contents;
        if (contents.size() + got > most) return {};
        contents.insert(contents.end(), block.begin(), block.begin() + static_cast<std::ptrdiff_t>(got));
    }
}

// A file has the rights of its folder.
Written writeNew(const std::string& name, const Bytes& contents, const std::string& /*readableAs*/) {
    const Handle file(openAs(name, GENERIC_WRITE, CREATE_ALWAYS));
    if (!file.isOpen()) return Written::noNewFile;
    return writeWhole(file, contents) ? Written::done : Written::failed;
}

bool overwrite(const std::string& name, const Bytes& contents) {
    const Handle file(openAs(name, GENERIC_WRITE, OPEN_EXISTING));
    return file.isOpen() && writeWhole(file, contents);
}

bool rename(const std::string& from, const std::string& to) {
    return MoveFileExW(wide(from).c_str(), wide(to).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

Removed remove(const std::string& name) {
    if (DeleteFileW(wide(name).c_str())) return Removed::yes;
    return nothingWasThere() || kindOf(name) == Kind::folder ? Removed::nothingThere : Removed::no;
}

// A rename is written through, and there is nothing else to ask for.
bool flushFolder(const std::string& /*folder*/) { return true; }

// A folder has no lock here, but a name that belongs to the session: the same folder gives the same name.
std::intptr_t lockFolder(const std::string& folder, int milliseconds) {
    const Handle opened(CreateFileW(wide(folder).c_str(), 0, everyShare, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION own{};
    if (!opened.isOpen() || !GetFileInformationByHandle(opened.handle, &own)) return 0;
    const std::string name = "Global\\gloomdeck-" + std::to_string(own.dwVolumeSerialNumber) + "-" +
                             std::to_string(own.nFileIndexHigh) + "-" + std::to_string(own.nFileIndexLow);
    const HANDLE lock = CreateMutexW(nullptr, FALSE, wide(name).c_str());
    if (lock) WaitForSingleObject(lock, static_cast<DWORD>(milliseconds));
    return reinterpret_cast<std::intptr_t>(lock);
}

void unlockFolder(std::intptr_t lock) {
    if (lock == 0) return;
    const HANDLE mutex = reinterpret_cast<HANDLE>(lock);
    ReleaseMutex(mutex);
    CloseHandle(mutex);
}

}  // namespace gloomdeck::file_system
