// What every fuzz target defines, for a fuzzer or the plain driver to call.
#pragma once

#include <cstddef>
#include <cstdint>

/// Tries one input; aborts when that shows a fault. Always 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
