#include "bench/MedianReporter.h"

#include <QStringList>

bool MedianReporter::ReportContext(const Context& /*context*/)
{
    return true;
}

void MedianReporter::ReportRuns(const std::vector<Run>& report)
{
    for (const auto& run : report) {
        if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median")
            continue;
        const auto name = QString::fromStdString(run.run_name.function_name).split(QLatin1Char('/'));
        auto& figures = measured[name.front()];
        (name.back() == QStringLiteral("ours") ? figures.ours : figures.reference) =
            run.GetAdjustedRealTime();
    }
}
