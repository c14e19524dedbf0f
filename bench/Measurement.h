#pragma once

#include <benchmark/benchmark.h>
#include <chrono>

// Measures `work`, which does the same thing `times` times: once is what counts. What it returns is thrown
// away after the clock has stopped.
template <typename Work>
void measureWork(benchmark::State& state, const Work& work, qsizetype times = 1)
{
    const auto start = std::chrono::steady_clock::now();
    const auto result = work();
    const auto end = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(&result);
    state.SetIterationTime(std::chrono::duration<double>(end - start).count() / static_cast<double>(times));
}

// Adds a measurement. Each repetition runs `measure` once, in an order of chance among all measurements, so
// that whatever slows the machine down for a while slows all alike.
template <typename Measure>
void addMeasurement(const char* name, const Measure& measure)
{
    benchmark::RegisterBenchmark(name,
                                 [measure](benchmark::State& state) {
                                     for (auto iteration : state) {
                                         static_cast<void>(iteration);
                                         measure(state);
                                     }
                                 })
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}
