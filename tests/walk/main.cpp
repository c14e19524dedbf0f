#include "tests/walk/WalkProcess.h"

#include <QCommandLineParser>
#include <iostream>
#include <random>

namespace {

constexpr int shrinkingSeconds = 60;

struct Options
{
    std::vector<unsigned> seeds;
    int steps = 0;
    std::optional<std::vector<Step>> replay;
    bool verbose = false;
};

Options optionsFrom(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Random users walk through the program's window, beside a model of it.");
    parser.addHelpOption();
    parser.addOptions(
        {{"first", "The first of the fixed seeds.", "seed", "1"},
         {"seeds", "How many fixed seeds.", "count", "20"},
         {"fresh", "How many seeds by chance besides.", "count", "0"},
         {"steps", "Steps a walk.", "count", "100"},
         {"verbose", "Prints every step."},
         {"replay", "Takes these steps, as a failing walk prints them, with the first seed.", "steps"}});
    parser.process(arguments);
    Options options;
    const unsigned first = parser.value("first").toUInt();
    for (unsigned seed = 0; seed < parser.value("seeds").toUInt(); ++seed)
        options.seeds.push_back(first + seed);
    std::random_device chance;
    for (int seed = 0; seed < parser.value("fresh").toInt(); ++seed)
        options.seeds.push_back(chance());
    options.steps = parser.value("steps").toInt();
    options.verbose = parser.isSet("verbose");
    if (parser.isSet("replay")) {
        options.replay = stepsFrom(parser.value("replay"));
        options.seeds = {first};
    }
    return options;
}

void print(const QString& text)
{
    std::cout << text.toStdString() << std::endl;
}

// A failing walk is taken again, then shortened, and the shortest one told step by step.
void explain(unsigned seed, const std::vector<Step>& steps, const WalkResult& result)
{
    print(QString("Seed %1 fails at step %2: %3").arg(seed).arg(result.begun).arg(result.failure));
    std::vector<Step> failing(steps.begin(), steps.begin() + result.begun);
    if (takeWalk(seed, failing).failure.isEmpty()) {
        print("The same walk taken again does not fail: something in it depends on chance.");
        return;
    }
    const std::vector<Step> shortest = shrunkSteps(seed, failing, shrinkingSeconds);
    const WalkResult last = takeWalk(seed, shortest);
    print(QString("The shortest walk found has %1 steps:").arg(shortest.size()));
    for (const QString& done : last.done)
        print("  - " + done);
    print(last.failure);
    print(QString("Again: --first %1 --replay \"%2\"").arg(seed).arg(textOf(shortest)));
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int argument = 0; argument < argc; ++argument)
        arguments.append(QString::fromLocal8Bit(argv[argument]));
    const Options options = optionsFrom(arguments);
    qsizetype steps = 0;
    int failures = 0;
    for (const unsigned seed : options.seeds) {
        const std::vector<Step> walk = options.replay.value_or(randomSteps(seed, options.steps));
        const WalkResult result = takeWalk(seed, walk);
        steps += result.done.size() - result.done.count(QString());
        if (options.verbose)
            print(QString("Seed %1:\n  ").arg(seed) + result.done.join("\n  "));
        if (!result.failure.isEmpty()) {
            ++failures;
            explain(seed, walk, result);
        }
    }
    print(QString("%1 walks, %2 steps taken, %3 failed").arg(options.seeds.size()).arg(steps).arg(failures));
    return failures == 0 ? 0 : 1;
}
