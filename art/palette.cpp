// The letters of hand-set pixels and the list of all ramps.
#include "art/palette.h"

namespace gloomdeck::art {

std::span<const StampLetter> stampLetters() {
    using namespace ramp;
    // clang-format off
    static constexpr StampLetter letters[] = {
        {'#', ink[0]},     {'k', bone[0]},    {'n', bone[1]},    {'m', bone[2]},    {'b', bone[3]},   {'d', bone[4]},
        {'l', bone[5]},    {'w', bone[6]},    {'u', gold[1]},    {'U', gold[2]},    {'z', gold[3]},   {'y', gold[4]},
        {'Y', gold[5]},    {'h', gold[6]},    {'e', fire[1]},    {'R', fire[2]},    {'r', fire[3]},   {'o', fire[4]},
        {'O', fire[5]},    {'i', crimson[2]}, {'I', crimson[3]}, {'J', crimson[4]}, {'v', violet[0]}, {'V', violet[1]},
        {'P', violet[3]},  {'p', violet[4]},  {'t', cyan[1]},    {'T', cyan[2]},    {'c', cyan[4]},   {'C', cyan[6]},
        {'a', acid[0]},    {'A', acid[1]},    {'g', acid[3]},    {'G', acid[5]},    {'M', moss[3]},   {'Q', stone[1]},
        {'q', stone[2]},   {'x', stone[3]},   {'X', stone[4]},   {'s', stone[5]},   {'S', steel[6]},  {'f', flesh[3]},
        {'F', flesh[4]},   {'B', wood[1]}};
    // clang-format on
    return letters;
}

Colour stampColour(char letter) {
    for (const StampLetter& s : stampLetters()) {
        if (s.letter == letter) return s.colour;
    }
    return keyColour;
}

std::span<const Ramp> allRamps() {
    using namespace ramp;
    static constexpr Ramp ramps[] = {ink,    stone, steel, bone,   wood,  gold,  fire,  crimson,
                                     moss,   acid,  cyan,  violet, flesh, floor, mossy, portal,
                                     marble, inlay, ash,   dawn,   noon,  dusk,  night};
    return ramps;
}

}  // namespace gloomdeck::art
