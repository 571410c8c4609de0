// Small operations on texts.
#pragma once

#include <string_view>

namespace gloomdeck {

/// The text without the spaces at both ends.
constexpr std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace gloomdeck
