// What is done with a file between opening and closing it: the same on a disk and in a browser.
#include <algorithm>
#include <cstring>

#include "platform/files.h"

namespace gloomdeck {

bool isOpen(const File& file) { return !file.path.empty(); }

std::size_t readBytes(File& file, void* buffer, std::size_t count) {
    const std::size_t got = std::min(count, file.contents.size() - file.position);
    if (got > 0) std::memcpy(buffer, file.contents.data() + file.position, got);
    file.position += got;
    return got;
}

std::size_t writeBytes(File& file, const void* buffer, std::size_t count) {
    if (!isOpen(file) || count == 0) return 0;
    const std::size_t end = file.position + count;
    if (file.contents.size() < end) file.contents.resize(end);
    std::memcpy(file.contents.data() + file.position, buffer, count);
    file.position = end;
    file.changed = true;
    return count;
}

}  // namespace gloomdeck
