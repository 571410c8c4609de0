// The program's folder and whole-record binary files. Paths may use "\" as separator.
#pragma once

#include <cstddef>
#include <string>

namespace gloomdeck {

/// The folder of the running program, without a trailing separator.
std::string programFolder();

bool fileExists(const std::string& path);

/// The path as the system writes it.
std::string nativePath(std::string path);

/// An open file; empty when it could not be opened.
struct File {
    void* handle = nullptr;
};

/// Opens for reading and writing, creating what does not exist; a file that may only be read opens for that.
/// Where it cannot be opened the other operations do nothing.
File openFile(const std::string& path);

/// Transfers at most count bytes at the current position; the answer is how many were.
std::size_t readBytes(File& file, void* buffer, std::size_t count);
std::size_t writeBytes(File& file, const void* buffer, std::size_t count);
void closeFile(File& file);

}  // namespace gloomdeck
