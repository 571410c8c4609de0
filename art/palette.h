// The colours of the picture set: seven-step ramps and the letters that hand-set pixels are written with.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace gloomdeck::art {

using Colour = std::uint32_t;  // 0xRRGGBB
using Ramp = std::array<Colour, 7>;

// Step 0 is the contour, 1 and 2 are shade, 3 and 4 the body, 5 and 6 light.
namespace ramp {
// clang-format off
inline constexpr Ramp ink    {0x0E1214, 0x0E1214, 0x161C1E, 0x161C1E, 0x20282B, 0x20282B, 0x20282B};
inline constexpr Ramp stone  {0x171D21, 0x2A343A, 0x414E57, 0x5A6874, 0x708090, 0x98A6B2, 0xC3CDD3};
inline constexpr Ramp steel  {0x171D21, 0x2A343A, 0x5A6874, 0x708090, 0x98A6B2, 0xC3CDD3, 0xE8EEF0};
inline constexpr Ramp bone   {0x3A302A, 0x6B5B4B, 0x9C8A70, 0xC9B997, 0xE8DABD, 0xFAF0E6, 0xFFFFFF};
inline constexpr Ramp wood   {0x1F110B, 0x3F2010, 0x642E10, 0x964514, 0xBC6A2B, 0xDB9650, 0xF2C489};
inline constexpr Ramp gold   {0x3A2408, 0x71480E, 0xAE7A18, 0xDFAE2B, 0xFFD94A, 0xFFF08C, 0xFFFFE0};
inline constexpr Ramp fire   {0x2E0A0C, 0x641418, 0xA5261F, 0xDB4E26, 0xF58A2E, 0xFFC24A, 0xFFF0A0};
inline constexpr Ramp crimson{0x2E0A10, 0x5F0C1C, 0xA4142A, 0xDA2A3C, 0xF0484C, 0xFC887A, 0xFFD6CA};
inline constexpr Ramp moss   {0x0F1A15, 0x1A2C23, 0x2E473B, 0x446650, 0x6A8F68, 0x9CBB83, 0xCFE0AE};
inline constexpr Ramp acid   {0x14240A, 0x2B4A0E, 0x4F7A14, 0x80AC22, 0xB4D848, 0xE0F590, 0xF8FFD8};
inline constexpr Ramp cyan   {0x0B2230, 0x164458, 0x27728A, 0x4AA6B4, 0x8AD6D6, 0xC8F3EA, 0xF4FFFB};
inline constexpr Ramp violet {0x150E26, 0x2B1B4A, 0x4C3080, 0x7650B4, 0xA684DC, 0xD3BEF4, 0xF2E9FF};
inline constexpr Ramp flesh  {0x3B1A16, 0x6E3526, 0xA55C3E, 0xD48E64, 0xF0BE94, 0xFCE0C4, 0xFFF4E6};
// Terrain: duller and darker than the things that stand on it.
inline constexpr Ramp floor  {0x12171A, 0x1C2327, 0x272F34, 0x333D43, 0x414C53, 0x525E66, 0x66737B};
inline constexpr Ramp mossy  {0x101712, 0x19231C, 0x233228, 0x2F4234, 0x3E5542, 0x526B50, 0x6B8462};
inline constexpr Ramp portal {0x0E0B15, 0x171224, 0x221B35, 0x2F2649, 0x40345F, 0x544878, 0x6E6392};
inline constexpr Ramp marble {0x0A141D, 0x0F1E2A, 0x16293A, 0x1F374B, 0x2B475D, 0x3B5A70, 0x537388};
inline constexpr Ramp inlay  {0x3A2408, 0x3A2408, 0x6B4E1E, 0x8A6828, 0x8A6828, 0x8A6828, 0x8A6828};
inline constexpr Ramp ash    {0x0E1214, 0x1A1512, 0x2A2019, 0x4A3A2E, 0x6B5B4B, 0x8C7A64, 0x9C8A70};
// Skies of the day strip, top to horizon.
inline constexpr Ramp dawn   {0x150E26, 0x2B1B4A, 0x4C3080, 0xA55C3E, 0xF58A2E, 0xFFC24A, 0xFFF0A0};
inline constexpr Ramp noon   {0x0B2230, 0x164458, 0x27728A, 0x4AA6B4, 0x8AD6D6, 0xC8F3EA, 0xF4FFFB};
inline constexpr Ramp dusk   {0x150E26, 0x2B1B4A, 0x641418, 0xA5261F, 0xDB4E26, 0xF58A2E, 0xFFC24A};
inline constexpr Ramp night  {0x0E1214, 0x150E26, 0x150E26, 0x2B1B4A, 0x164458, 0x27728A, 0x27728A};
// clang-format on
}  // namespace ramp

inline constexpr Colour keyColour = 0xFF00FF;  // transparent, in the strips and in the hashes
inline constexpr Colour inkColour = ramp::ink[0];
inline constexpr Colour white = ramp::bone[6];

// Grounds of the interface that pictures are judged on.
inline constexpr Colour panelGround = ramp::moss[2];
inline constexpr Colour slateGround = ramp::stone[4];
inline constexpr Colour dimGround = 0x696969;

struct StampLetter {
    char letter;
    Colour colour;
};

// Every letter a hand-set pixel can be written with; '.' and ' ' leave the pixel alone.
std::span<const StampLetter> stampLetters();
Colour stampColour(char letter);

// Every ramp there is.
std::span<const Ramp> allRamps();

}  // namespace gloomdeck::art
