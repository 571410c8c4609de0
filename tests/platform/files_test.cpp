#include "platform/files.h"

#include <sys/resource.h>

#include <array>
#include <csignal>
#include <filesystem>

#include "platform/host_script.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

void writeFile(const std::string& path, std::string_view text) {
    File file = openFile(path);
    EXPECT_EQ(writeBytes(file, text.data(), text.size()), text.size());
    closeFile(file);
}

std::string readFile(const std::string& path) {
    std::string record(20, '.');
    File file = openFile(path);
    record.resize(readBytes(file, record.data(), record.size()));
    closeFile(file);
    return record;
}

// For as long as the scope lasts no file grows beyond that many bytes, as on a disk that is full.
struct FullDisk {
    explicit FullDisk(rlim_t bytes) : ignored(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small{.rlim_cur = bytes, .rlim_max = before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, ignored);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    void (*ignored)(int);
    rlimit before{};
};

}  // namespace

TEST(Files, RecordsAreReplacedWholeAndKeepALongerFilesTail) {
    const std::string folder = makeProgramFolder();
    const std::string path = folder + "/Data/record.dat";
    script::setFolder(folder);
    EXPECT_FALSE(fileExists(path) || fileExists(folder));
    writeFile(folder + "\\Data\\record.dat", "0123456789");
    writeFile(path, "abc");
    EXPECT_EQ(readFile(path), "abc3456789");
    {
        const FullDisk disk(4);
        writeFile(path, "lost");
    }
    EXPECT_EQ(readFile(path), "abc3456789") << "a save that fails leaves the old file";
    EXPECT_FALSE(std::filesystem::exists(path + ".new")) << "and nothing beside it";
    std::filesystem::create_directory(path + ".new");
    writeFile(path, "here");
    EXPECT_EQ(readFile(path), "here456789") << "where no new file can be made it is written in place";
    removeProgramFolders();
}

TEST(Files, WhatCannotBeOpenedTakesAndGivesNothing) {
    const std::string folder = makeProgramFolder();
    script::setFolder(folder);
    char byte = 'x';
    std::filesystem::create_symlink("/proc/self/mem", folder + "/unreadable.dat");
    for (const std::string& unusable : {folder, folder + "/none/record.dat", folder + "/unreadable.dat"}) {
        File closed = openFile(unusable);
        EXPECT_FALSE(isOpen(closed) || fileContents(unusable));
        EXPECT_EQ(readBytes(closed, &byte, 1) + writeBytes(closed, &byte, 1), 0U);
        closeFile(closed);
    }
    const std::string record = folder + "/Data/record.dat";
    writeFile(record, "old");
    FilesTogether both({record, folder + "/unreadable.dat"});
    std::array files{openFile(both, record), openFile(both, folder + "/unreadable.dat")};
    writeBytes(files[0], "new", 3);
    closeTogether(both, files);
    EXPECT_EQ(readFile(record), "old") << "nor is what belongs together with it written";
    removeProgramFolders();
}

TEST(Files, WhatACutSaveLeftAndNobodyCouldPutInItsPlaceIsReadWhereItStands) {
    const std::string folder = makeProgramFolder();
    script::setFolder(folder);
    const std::string first = folder + "/Data/first.dat";
    const std::string second = folder + "/Data/second.dat";
    writeFile(first, "new");
    writeFile(second + ".next", "newer");
    std::filesystem::create_directory(second);
    FilesTogether both({first, second});
    for (const auto& [path, text] : {std::pair{first, "new"}, {second, "newer"}}) {
        EXPECT_TRUE(fileExists(both, path));
        std::string read(20, '.');
        File file = openFile(both, path);
        read.resize(readBytes(file, read.data(), read.size()));
        EXPECT_EQ(read, text);
    }
    removeProgramFolders();
}

}  // namespace gloomdeck
