// The texts of the campaigns.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "content/campaigns.h"

namespace gloomdeck {

inline constexpr int storyTextCount = 9;  ///< texts a campaign can hold

/// By campaign and number: 0 describes the campaign, k stands before the board of stage k (from 1), the one
/// after the last stage closes it.
extern const std::array<std::array<std::string_view, storyTextCount>, campaignCount> StoryTexts;

/// One text; empty where there is none.
std::string_view storyText(int campaign, std::int64_t number);

}  // namespace gloomdeck
