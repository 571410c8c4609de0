#include "tests/support/rolls.h"

#include <deque>
#include <random>
#include <stdexcept>

#include "platform/random.h"

namespace gloomdeck {

namespace {

std::deque<FedRoll> fed;
int missing = 0;
constexpr int mostMissing = 10000;
std::mt19937_64 stream;

double nextFed() {
    if (fed.empty()) {
        if (++missing > mostMissing) throw std::runtime_error("a loop waits for a roll that nobody feeds");
        return 0.0;
    }
    const FedRoll roll = fed.front();
    fed.pop_front();
    return (roll.value - 0.5) / roll.sides;
}

double nextOfStream() { return static_cast<double>(stream() >> 11) * 0x1.0p-53; }

}  // namespace

void rolls(std::initializer_list<FedRoll> list) { rolls(std::vector<FedRoll>(list)); }

void rolls(const std::vector<FedRoll>& list) {
    fed.insert(fed.end(), list.begin(), list.end());
    useRandomSource(nextFed);
}

void seedRolls(std::uint64_t seed) {
    stream.seed(seed);
    useRandomSource(nextOfStream);
}

int leftoverRolls() { return static_cast<int>(fed.size()); }

int missingRolls() { return missing; }

void resetRolls() {
    fed.clear();
    missing = 0;
    useRandomSource(nullptr);
}

}  // namespace gloomdeck
