#include "model/AppDelegate.h"
#include "platform/foundation/Console.h"
#include "storyboard/MainWindow.h"
#include "tour/AccessibleListener.h"
#include "tour/Chapters.h"
#include "tour/Complaints.h"
#include "tour/FakeClock.h"
#include "tour/Tour.h"
#include "tour/TourCatalogue.h"
#include "tour/TourError.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QStyleHints>
#include <iostream>

namespace {

struct Options
{
    QString outputFolder;
    QString exchangeFile;
    // Empty: all.
    QString chapter;
};

Options optionsFrom(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Plays a tour through the program and keeps pictures of its screens.");
    parser.addHelpOption();
    parser.addPositionalArgument("output-folder", "Where the pictures go; made if need be.");
    parser.addPositionalArgument("exchange-file", "The movies that are imported.", "[exchange-file]");
    parser.addOption({"chapter", "Plays one chapter only.", "name"});
    parser.process(arguments);
    const QStringList paths = parser.positionalArguments();
    if (paths.isEmpty() || paths.size() > 2)
        parser.showHelp(2);
    return {
        QDir::current().absoluteFilePath(paths[0]),
        QDir::current().absoluteFilePath(paths.value(1, MARROWVALE_SOURCE_DIR "/tests/data/Marrowvale.csv")),
        parser.value("chapter")};
}

void play(const Chapter& chapter, const Options& options)
{
    const TourHome home(options.outputFolder);
    TourDevice device(home.path("."));
    AppDelegate delegate;
    delegate.didFinishLaunchingWithOptions();
    TourCatalogue::fill(chapter.catalogue, options.exchangeFile);
    MainWindow window;
    window.show();
    const QString pictureStart = QDir(options.outputFolder).filePath(chapter.name);
    try {
        Tour tour(window, device, home, options.exchangeFile, pictureStart);
        chapter.play(tour);
        tour.step(QString("That was the chapter \"%1\"").arg(chapter.name));
    } catch (const TourError&) {
        window.grabWindow().save(pictureStart + "-where-it-ended.png");
        throw;
    }
}

void play(const Options& options)
{
    bool played = false;
    for (const Chapter& chapter : chapters)
        if (options.chapter.isEmpty() || options.chapter == chapter.name) {
            play(chapter, options);
            played = true;
        }
    if (!played)
        throw TourError("There is no chapter \"" + options.chapter + '"');
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int argument = 0; argument < argc; ++argument)
        arguments.append(QString::fromLocal8Bit(argv[argument]));
    const Options options = optionsFrom(arguments);
    // Nobody watches: time need not pass.
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        FakeClock::start();
    try {
        QDir().mkpath(options.outputFolder);
        // What the toolkit itself keeps at home stays out of the user's.
        const TourHome outermost(options.outputFolder);
        const QApplication application(argc, argv);
        QGuiApplication::styleHints()->setCursorFlashTime(0);
        Complaints::listen();
        AccessibleListener::start();
        play(options);
        return 0;
    } catch (const TourError& error) {
        std::cerr << "The tour ended early: " << error.what() << '\n';
        return 1;
    }
}
