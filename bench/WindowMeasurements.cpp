#include "bench/WindowMeasurements.h"

#include "bench/BenchError.h"
#include "bench/BenchHome.h"

#include <QCoreApplication>
#include <QProcess>
#include <chrono>

namespace {

struct WindowRun
{
    double millisecondsToFirstFrame = 0;
    double residentMebibytes = 0;
};

// In the mode "empty", "start" or "list", with its data in the folder of that name.
WindowRun runWindow(BenchHome& home, const QString& mode, const QString& dataFolder)
{
    constexpr int longestRun = 120'000;
    home.useDataFolder(dataFolder);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto start = std::chrono::steady_clock::now().time_since_epoch();
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/marrowvale_bench_window"),
                  {mode});
    if (!process.waitForFinished(longestRun) || process.exitCode() != 0)
        throw BenchError(QStringLiteral("The window \"%1\" did not do its work").arg(mode));
    // The program may say other things before.
    const auto figures = process.readAllStandardOutput().trimmed().split('\n').last().split(' ');
    if (figures.size() != 2)
        throw BenchError(QStringLiteral("The window \"%1\" told no figures").arg(mode));
    const std::chrono::duration<double, std::milli> started =
        std::chrono::nanoseconds(figures.first().toLongLong()) - start;
    constexpr double kibibytesPerMebibyte = 1024;
    return {started.count(), figures.last().toDouble() / kibibytesPerMebibyte};
}

double median(std::vector<double>& values)
{
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

Figures compareWindows(BenchHome& home, const QString& mode, const QString& dataFolder,
                       double WindowRun::*figure, int turns)
{
    std::vector<double> ours;
    std::vector<double> reference;
    // The first turn warms the machine up, and the program does what it does on the first launch only.
    for (int turn = 0; turn <= turns; ++turn) {
        const auto oursNow = runWindow(home, mode, dataFolder).*figure;
        const auto referenceNow = runWindow(home, QStringLiteral("empty"), dataFolder).*figure;
        if (turn > 0) {
            ours.push_back(oursNow);
            reference.push_back(referenceNow);
        }
    }
    return {median(ours), median(reference)};
}

} // namespace

FiguresByRow measureWindows(BenchHome& home)
{
    constexpr int startTurns = 15;
    constexpr int memoryTurns = 3;
    return {{QStringLiteral("start"), compareWindows(home, QStringLiteral("start"), QStringLiteral("start"),
                                                     &WindowRun::millisecondsToFirstFrame, startTurns)},
            {QStringLiteral("memory"), compareWindows(home, QStringLiteral("list"), QStringLiteral("data"),
                                                      &WindowRun::residentMebibytes, memoryTurns)}};
}
