#include "prefs/prefs.h"

#include <algorithm>
#include <cstring>

namespace gloomdeck {

Prefs prefs{};

namespace {

constexpr std::array<std::string_view, speedCount> speedNames{"Slowest",   "Slow",       "Normal",   "Fast",
                                                              "Very Fast", "Ultra Fast", "Mega fast"};
constexpr int switchCount = 7;
constexpr std::size_t switchesOffset = 48;

std::uint32_t switchWord() {
    std::uint32_t word = 0;
    std::memcpy(&word, reinterpret_cast<const char*>(&prefs) + switchesOffset, sizeof word);
    return word;
}

int clampedSpeed(int speed) { return std::clamp(speed, 0, speedCount - 1); }

}  // namespace

int speedIndex() { return clampedSpeed(prefs.GameSpeed); }

std::string_view SpeedName(int speed) { return speedNames[static_cast<std::size_t>(clampedSpeed(speed))]; }

bool switchIsOn(int bit) { return bit >= 0 && bit < switchCount && ((switchWord() >> bit) & 1) != 0; }

void flipSwitch(int bit) {
    if (bit < 0 || bit >= switchCount) return;
    const std::uint32_t word = switchWord() ^ (std::uint32_t{1} << bit);
    std::memcpy(reinterpret_cast<char*>(&prefs) + switchesOffset, &word, sizeof word);
}

std::string_view nameText(const std::array<char, 21>& name) {
    const auto* const end = std::find(name.begin(), name.end() - 1, '\0');
    return {name.data(), static_cast<std::size_t>(end - name.begin())};
}

void storeName(std::array<char, 21>& name, std::string_view text) {
    name.fill('\0');
    std::copy_n(text.begin(), std::min(text.size(), name.size() - 1), name.begin());
}

}  // namespace gloomdeck
