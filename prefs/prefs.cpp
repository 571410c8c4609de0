// The record's names and limits.
#include "prefs/prefs.h"

#include <algorithm>

namespace gloomdeck {

Prefs prefs{};

namespace {

constexpr std::array<std::string_view, speedCount> speedNames{"Slowest",   "Slow",       "Normal",   "Fast",
                                                              "Very Fast", "Ultra Fast", "Mega fast"};

int clampedSpeed(int speed) { return std::clamp(speed, 0, speedCount - 1); }

}  // namespace

int speedIndex() { return clampedSpeed(prefs.GameSpeed); }

std::string_view SpeedName(int speed) { return speedNames[static_cast<std::size_t>(clampedSpeed(speed))]; }

std::string_view nameText(const std::array<char, 21>& name) {
    const auto* const end = std::find(name.begin(), name.end() - 1, '\0');
    return {name.data(), static_cast<std::size_t>(end - name.begin())};
}

void storeName(std::array<char, 21>& name, std::string_view text) {
    name.fill('\0');
    std::copy_n(text.begin(), std::min(text.size(), name.size() - 1), name.begin());
}

}  // namespace gloomdeck
