// The player's switches: what the autoplayer may do, and what is skipped between boards.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string_view>

namespace gloomdeck {

/// A switch by its bit in Prefs::switches.
enum class Switch : std::uint32_t {
    goodStuff = 1U << 0,
    fairlyEasy = 1U << 1,
    obstacles = 1U << 2,
    grief = 1U << 3,
    spellsSkills = 1U << 4,
    restartSwitch = 1U << 5,
    skipText = 1U << 6
};

struct SwitchType {
    Switch bit;
    bool onAtFirst;
    bool allowsMoves;  // of the autoplayer, which stands still when all of these are off
    std::int32_t top;  // of its button on the preferences screen
    std::string_view label;
};

/// The rows of the preferences screen, from the top.
// clang-format off
inline constexpr std::array SwitchTable{
    //                                at first  moves  top  label
    SwitchType{Switch::goodStuff,     false,    true,  174, "Good stuff: "},
    SwitchType{Switch::fairlyEasy,    false,    true,  193, "Fairly easy: "},
    SwitchType{Switch::obstacles,     false,    true,  212, "Obstacles: "},
    SwitchType{Switch::spellsSkills,  false,    true,  231, "Spells/skills: "},
    SwitchType{Switch::grief,         false,    true,  250, "\"Grief\": "},
    SwitchType{Switch::restartSwitch, false,    false, 269, "Restart: "},
    SwitchType{Switch::skipText,      false,    false, 306, "Skip text: "},
};
// clang-format on

inline constexpr int switchCount = static_cast<int>(SwitchTable.size());

/// The bits of the switches for which a column of the table is true.
constexpr std::uint32_t switchesWith(bool SwitchType::*column) {
    std::uint32_t bits = 0;
    for (const SwitchType& type : SwitchTable)
        if (type.*column) bits |= static_cast<std::uint32_t>(type.bit);
    return bits;
}

inline constexpr std::uint32_t everySwitch = [] {
    std::uint32_t bits = 0;
    for (const SwitchType& type : SwitchTable) bits |= static_cast<std::uint32_t>(type.bit);
    return bits;
}();
static_assert(std::popcount(everySwitch) == switchCount, "every switch has a bit of its own");

bool switchIsOn(Switch which);
void setSwitch(Switch which, bool on);
void flipSwitch(Switch which);

}  // namespace gloomdeck
