// The two saved files, damaged in any way, and the session that follows.
#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "fuzz/games.h"
#include "fuzz/lives.h"
#include "fuzz/target.h"
#include "prefs/prefs.h"
#include "rules/game_state.h"

namespace gloomdeck::fuzz {

namespace {

constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::array<std::int32_t, 24> lies{
    0, 1, -1, 2, 3, 4, 5, 6, 7, 8, 9, 23, 24, 95, 96, 100, 60, -2, 255, 256, most, least, most - 1, 1000000};

void take(InputBytes& bytes, Bytes& file, std::size_t size) {
    const std::size_t there = std::min(size, bytes.left.size());
    file.assign(bytes.left.begin(), bytes.left.begin() + static_cast<std::ptrdiff_t>(there));
    file.resize(size);
    bytes.left = bytes.left.subspan(there);
}

// Puts a lie, or any number, in the place of one of the file's numbers.
void damage(InputBytes& bytes, Bytes& file) {
    const std::size_t numbers = file.size() / sizeof(std::int32_t);
    const std::size_t at = static_cast<std::size_t>(bytes.byte()) % numbers * sizeof(std::int32_t);
    const auto which = static_cast<std::size_t>(bytes.byte());
    const std::int32_t lie = which < lies.size() ? lies[which] : bytes.word();
    std::memcpy(file.data() + at, &lie, sizeof lie);
}

SavedFiles damagedGame(InputBytes& bytes) {
    dealGame(bytes);
    SavedFiles files = filesOfRecords();
    for (int left = bytes.below(16); left > 0; --left) damage(bytes, files.game);
    for (int left = bytes.below(4); left > 0; --left) damage(bytes, files.prefs);
    return files;
}

SavedFiles anyBytes(InputBytes& bytes) {
    SavedFiles files;
    take(bytes, files.game, sizeof(GameState));
    take(bytes, files.prefs, sizeof(Prefs));
    return files;
}

// Half of the files keep their length; others are cut, longer, or missing.
void cutOrExtend(InputBytes& bytes, Bytes& file) {
    const int how = bytes.byte();
    if (how < 128) return;
    if (how < 192)
        file.resize(static_cast<std::size_t>(bytes.word()) % file.size());
    else if (how < 240)
        file.resize(file.size() + static_cast<std::size_t>(how), static_cast<std::uint8_t>(how));
    else
        file.clear();
}

SavedFiles chosenFiles(InputBytes& bytes) {
    const bool dealt = bytes.below(2) == 0;
    SavedFiles files = dealt ? damagedGame(bytes) : anyBytes(bytes);
    cutOrExtend(bytes, files.game);
    cutOrExtend(bytes, files.prefs);
    return files;
}

// What a cut has left: most inputs nothing, some one of the two, some both.
void leaveHalfDone(InputBytes& bytes, const ProgramFolder& folder) {
    const int how = bytes.byte();
    if (how < 224) return;
    SavedFiles left = filesOfRecords();
    left.game.resize((how & 1) == 0 ? 0 : left.game.size() / 2);
    left.prefs.resize((how & 2) == 0 ? 0 : left.prefs.size() - static_cast<std::size_t>(bytes.below(4)));
    putLeftovers(folder, left);
}

}  // namespace

}  // namespace gloomdeck::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gloomdeck;
    static const ProgramFolder folder;
    fuzz::InputBytes bytes{{data, size}};
    fuzz::putFiles(folder, fuzz::chosenFiles(bytes));
    fuzz::leaveHalfDone(bytes, folder);
    fuzz::playLives(folder, bytes, fuzz::Records::damaged);
    return 0;
}
