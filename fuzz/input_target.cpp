// Keys, clicks, moves, close requests and time in any order, from a first start or a game that is dealt.
#include "fuzz/games.h"
#include "fuzz/lives.h"
#include "fuzz/target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gloomdeck;
    static const ProgramFolder folder;
    fuzz::InputBytes bytes{{data, size}};
    fuzz::clearFiles(folder);
    if (bytes.below(4) != 0) {
        fuzz::dealGame(bytes);
        fuzz::putFiles(folder, fuzz::filesOfRecords());
    }
    fuzz::playLives(folder, bytes, fuzz::Records::sound);
    return 0;
}
