#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>

// What a fuzzer calls with each input; the name is the fuzzing engine's. Answers 0, or ends the program.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

// Ends the program, which the fuzzer takes for a finding, unless `holds`.
inline void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}
