// Measures the program beside what it is built on and prints a table: what, ours, reference, ratio, bar.
#include "bench/BareDatabase.h"
#include "bench/BenchError.h"
#include "bench/BenchHome.h"
#include "bench/Measurements.h"
#include "bench/MedianReporter.h"
#include "bench/SampleCatalogue.h"
#include "bench/WindowMeasurements.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

namespace {

constexpr int brokenBench = 2;

struct Options
{
    int movieCount = 0;
    bool measuresWindows = true;
};

// What is left of the arguments once Google Benchmark has taken its own.
Options readOptions(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures Marrowvale and prints a table."));
    parser.addHelpOption();
    const QCommandLineOption movies(QStringLiteral("movies"), QStringLiteral("The size of the catalogue."),
                                    QStringLiteral("N"), QStringLiteral("100000"));
    const QCommandLineOption noWindows(QStringLiteral("no-windows"),
                                       QStringLiteral("Leaves out what is measured of whole processes."));
    parser.addOptions({movies, noWindows});
    parser.process(application);
    Options options{parser.value(movies).toInt(), !parser.isSet(noWindows)};
    if (options.movieCount < 10)
        throw BenchError(QStringLiteral("--movies wants a number from 10"));
    return options;
}

// Google Benchmark's arguments, in the order of their strength: ours, then the user's.
void initializeBenchmark(std::vector<char*>& arguments)
{
    static char interleaved[] = "--benchmark_enable_random_interleaving=true";
    static char repeated[] = "--benchmark_repetitions=9";
    arguments.insert(arguments.begin() + 1, {interleaved, repeated});
    auto count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    arguments.resize(static_cast<std::size_t>(count));
}

// Whoever has no display measures without one.
void choosePlatform()
{
    if (qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
        qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
}

void makeCatalogue(BenchHome& home, const QString& folder, int movieCount)
{
    std::fprintf(stderr, "Making a catalogue of %d movies...\n", movieCount);
    makeSampleCatalogue(home.useDataFolder(folder), movieCount);
}

void makeCatalogueOfOneGenre(BenchHome& home, int movieCount)
{
    makeCatalogue(home, QStringLiteral("covers"), movieCount);
    BareDatabase(storeFile(home.useDataFolder(QStringLiteral("covers"))))
        .run("UPDATE Movies SET genre = 'Drama'");
}

FiguresByRow measureAll(const Options& options)
{
    BenchHome home;
    makeCatalogue(home, QStringLiteral("data"), options.movieCount);
    makeCatalogueOfOneGenre(home, rowNamed(QStringLiteral("report")).thingCount(options.movieCount));
    addFetchMeasurements(home);
    addListMeasurements(home);
    addSummaryMeasurements(home);
    addExportMeasurements(home);
    addReportMeasurements(home);
    addImportMeasurements(home, rowNamed(QStringLiteral("import")).thingCount(options.movieCount));
    MedianReporter reporter;
    std::fputs("Measuring...\n", stderr);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    auto figures = reporter.figures();
    if (options.measuresWindows) {
        makeCatalogue(home, QStringLiteral("start"),
                      rowNamed(QStringLiteral("start")).thingCount(options.movieCount));
        figures.merge(measureWindows(home));
    }
    return figures;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        std::vector<char*> arguments(argv, argv + argc);
        initializeBenchmark(arguments);
        choosePlatform();
        auto count = static_cast<int>(arguments.size());
        const QApplication application(count, arguments.data());
        const auto options = readOptions(application);
        printTable(measureAll(options), options.movieCount);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "marrowvale_bench: %s\n", error.what());
        return brokenBench;
    }
}
