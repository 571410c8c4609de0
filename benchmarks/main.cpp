// Runs what is measured without a window. Processor time counts, so that a busy machine changes little.
#include <benchmark/benchmark.h>

#include <cstdio>

#include "benchmarks/session.h"
#include "benchmarks/suites.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: gloomdeck_bench FOLDER [--benchmark_...]; FOLDER holds gfx\n");
        return 2;
    }
    gloomdeck::startSession(argv[1]);
    gloomdeck::registerPuts();
    gloomdeck::registerScreens();
    gloomdeck::registerAutoplayer();
    return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 2;
}
