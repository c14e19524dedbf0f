#include "model/AppDelegate.h"
#include "platform/foundation/Console.h"
#include "storyboard/MainWindow.h"
#include "tour/AccessibleListener.h"
#include "tour/Chapters.h"
#include "tour/Complaints.h"
#include "tour/Tour.h"
#include "tour/TourError.h"

#include <QApplication>
#include <QDir>
#include <QStyleHints>
#include <iostream>

namespace {

constexpr auto usage =
    "Usage: marrowvale_tour OUTPUT-FOLDER [EXCHANGE-FILE]\n"
    "Plays a tour through the program and keeps pictures of its screens in OUTPUT-FOLDER,\n"
    "which is made if need be.\n";

void play(const QString& outputFolder, const QString& exchangeFile, const TourHome& home)
{
    TourDevice device(home.path("."));
    AppDelegate delegate;
    delegate.didFinishLaunchingWithOptions();
    MainWindow window;
    window.show();
    Tour tour(window, device, home, outputFolder);
    try {
        seeFirstLaunch(tour);
        addMovie(tour);
        importMovies(tour, exchangeFile);
        browseMovies(tour);
        shareMovies(tour);
        editMovie(tour);
        changeSettings(tour);
        keepReferenceLists(tour);
        groupMovies(tour);
        sendOut(tour);
        lookAround(tour);
        tour.step("That was the tour");
    } catch (const TourError&) {
        window.grabWindow().save(QDir(outputFolder).filePath("where-it-ended.png"));
        throw;
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || argc > 3) {
        std::cerr << usage;
        return 2;
    }
    const QString outputFolder = QString::fromLocal8Bit(argv[1]);
    const QString exchangeFile =
        QString::fromLocal8Bit(argc == 3 ? argv[2] : MARROWVALE_SOURCE_DIR "/tests/data/Marrowvale.csv");
    try {
        QDir().mkpath(outputFolder);
        const TourHome home(outputFolder);
        const QApplication application(argc, argv);
        QGuiApplication::styleHints()->setCursorFlashTime(0);
        Complaints::listen();
        AccessibleListener::start();
        play(outputFolder, QDir::current().absoluteFilePath(exchangeFile), home);
        return 0;
    } catch (const TourError& error) {
        std::cerr << "The tour ended early: " << error.what() << '\n';
        return 1;
    }
}
