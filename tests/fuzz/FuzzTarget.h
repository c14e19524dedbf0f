#pragma once

#include <cstddef>

// What a fuzzer calls with each input; the name is the fuzzing engine's. Answers 0, or ends the program.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);
