// The texts of the campaigns.
#pragma once

#include <array>
#include <string_view>

namespace gloomdeck {

inline constexpr int storyTextCount = 9;  ///< texts a campaign can hold

/// By campaign and number: 0 describes the campaign, k stands before the board of stage k (from 1), the one
/// after the last stage closes it.
extern const std::array<std::array<std::string_view, storyTextCount>, 3> StoryTexts;

/// One text; empty where there is none.
std::string_view storyText(int campaign, int number);

}  // namespace gloomdeck
