// UTF-8 and the wide texts that Windows takes.
#pragma once

#include <string>

namespace gloomdeck {

/// What is no UTF-8 becomes the replacement character.
std::wstring wide(const std::string& text);
std::string narrow(const std::wstring& text);

}  // namespace gloomdeck
