#pragma once

#include "bench/Rows.h"

#include <benchmark/benchmark.h>

// Keeps the median of the repetitions of each measurement called "row/ours" or "row/reference", in
// milliseconds.
class MedianReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& report) override;

    [[nodiscard]] const FiguresByRow& figures() const { return measured; }

private:
    FiguresByRow measured;
};
