// Wide texts, converted by the system.
#include <windows.h>

#include "platform/wide_text.h"

namespace gloomdeck {

std::wstring wide(const std::string& text) {
    const int size = static_cast<int>(text.size());
    std::wstring made(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, made.data(), static_cast<int>(made.size()));
    return made;
}

std::string narrow(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    const int room = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string made(static_cast<std::size_t>(room), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, made.data(), room, nullptr, nullptr);
    return made;
}

}  // namespace gloomdeck
