// Tries files one after the other, for compilers without a fuzzer. The name stands before the outcome, so
// that the last one is that of a file which ends the program.
#include <cstdio>

#include "fuzz/target.h"
#include "platform/files.h"

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::printf("%s\n", argv[i]);
        std::fflush(stdout);
        const auto contents = gloomdeck::fileContents(argv[i]);
        if (!contents) return 2;
        LLVMFuzzerTestOneInput(contents->data(), contents->size());
    }
    return argc > 1 ? 0 : 2;
}
