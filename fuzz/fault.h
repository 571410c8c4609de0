// How a fuzz target tells that something is wrong.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace gloomdeck::fuzz {

/// Prints what is wrong and aborts, which is how a fuzzer learns of it.
[[noreturn]] inline void fault(const std::string& what) {
    std::fprintf(stderr, "fault: %s\n", what.c_str());
    std::abort();
}

}  // namespace gloomdeck::fuzz
