// The texts of the help pages.
#pragma once

#include <array>
#include <string_view>

namespace gloomdeck {

struct HelpLine {
    int y;
    std::string_view text;
};

inline constexpr std::array<HelpLine, 8> basicHelp{{{28, "Your goal is to clear all"},
                                                    {40, " the columns in a scenario."},
                                                    {64, "Click on a square at the"},
                                                    {76, " bottom of the map grid to"},
                                                    {88, " try and clear it."},
                                                    {110, "Click on a square in"},
                                                    {122, " your stats column"},
                                                    {134, " to cast a spell."}}};

inline constexpr std::array<HelpLine, 13> keyboardHelp{{{28, "T: Trading screen"},
                                                        {40, "Space: Cancel autoplayer"},
                                                        {52, "Esc: Cancel current mode"},
                                                        {76, "+: Increase game speed"},
                                                        {88, "-: Decrease game speed"},
                                                        {100, "H,?: Help"},
                                                        {124, "P: Prefs Screen"},
                                                        {136, "R: Quick restart,"},
                                                        {148, "   same scenario or campaign"},
                                                        {160, "N: Quit to main menu"},
                                                        {172, "Q,X,E: exit program"},
                                                        {196, "Arrow keys: menus on sub-"},
                                                        {208, " screens (help, new game)"}}};

// The spelling is its own.
inline constexpr std::string_view autoplayerHelp =
    "The autoplayer is a feature which can be used to assist in playing the game. "
    "Select what level you want it to play at, from the prefs screen.\\\\"
    "\"Good\" means that it will take items that have are beneificial "
    "if there is nothing that moves around or does stuff on the board.";

}  // namespace gloomdeck
