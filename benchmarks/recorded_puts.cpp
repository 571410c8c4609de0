// The linker sends every call of putImage here (see --wrap in the build's description).
#include "benchmarks/recorded_puts.h"

namespace gloomdeck {

namespace {

std::vector<Put>* record = nullptr;

}  // namespace

void putUnrecorded(int x, int y, const Image& image,
                   PutMode mode) __asm__("__real__ZN9gloomdeck8putImageEiiRKNS_5ImageENS_7PutModeE");
void putRecorded(int x, int y, const Image& image,
                 PutMode mode) __asm__("__wrap__ZN9gloomdeck8putImageEiiRKNS_5ImageENS_7PutModeE");

void putRecorded(int x, int y, const Image& image, PutMode mode) {
    if (record) record->push_back({x, y, &image, mode});
    putUnrecorded(x, y, image, mode);
}

void recordPuts(std::vector<Put>* list) { record = list; }

}  // namespace gloomdeck
