// What is kept about the player apart from the game in progress; also the preferences file, byte for byte.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace gloomdeck {

/// Which screen owns the mouse.
namespace screen_id {
inline constexpr int selection = 1;
inline constexpr int play = 2;
inline constexpr int help = 4;
inline constexpr int preferences = 5;
inline constexpr int training = 6;
}  // namespace screen_id

struct Prefs {
    std::int32_t GameSpeed;  // 0 to 6
    std::int32_t currentScreen;
    std::int32_t reserved;          // written as 0
    std::array<char, 21> heroName;  // zero-terminated
    std::uint8_t scenarioOver : 1;  // the board is cleared
    std::uint8_t unusedFlags : 7;
    std::array<std::uint8_t, 2> padding;
    std::int32_t spare;
    std::int32_t scenarioChoice;  // position in the scenario list
    std::int32_t campaignChoice;  // -1: a single scenario was chosen
    std::uint32_t switches;       // bits of prefs/switches.h
};

static_assert(sizeof(Prefs) == 52 && std::is_trivially_copyable_v<Prefs>);
static_assert(offsetof(Prefs, heroName) == 12 && offsetof(Prefs, padding) == 34 &&
              offsetof(Prefs, spare) == 36);
static_assert(offsetof(Prefs, scenarioChoice) == 40 && offsetof(Prefs, campaignChoice) == 44 &&
              offsetof(Prefs, switches) == 48);

extern Prefs prefs;

inline constexpr int speedCount = 7;

/// The game speed as an index of seven: a damaged value counts as the nearest end.
int speedIndex();

/// "Slowest" (0) to "Mega fast" (6); a speed outside is named as the nearest end.
std::string_view SpeedName(int speed);

/// A name as text, at most 20 characters.
std::string_view nameText(const std::array<char, 21>& name);

/// Stores at most 20 characters, zero-filled to the end of the field.
void storeName(std::array<char, 21>& name, std::string_view text);

}  // namespace gloomdeck
