#pragma once

#include "model/AppDelegate.h"
#include "storyboard/MainWindow.h"
#include "tests/support/Home.h"
#include "tests/support/ManualQueue.h"
#include "tests/support/RecordingDevice.h"
#include "tests/walk/ModelCatalogue.h"

#include <QFile>

// The whole program in a window, at the home menu, with a catalogue chosen by a seed, on a recording device.
// Its console goes to a file.
class WalkedProgram
{
    Home home;

public:
    explicit WalkedProgram(unsigned seed);

    [[nodiscard]] MainWindow& window() { return *mainWindow; }
    // The lines written to the console since the last call.
    [[nodiscard]] QStringList consoleLines();
    // The file that "Load File" finds: movies of the catalogue and others.
    [[nodiscard]] const QString& exchangeText() const { return exchange; }
    [[nodiscard]] QString path(const QString& file) const { return home.path(file); }

    ManualQueue queue;
    RecordingDevice device;

private:
    QFile console;
    AppDelegate delegate;
    QString exchange;
    std::unique_ptr<MainWindow> mainWindow;
};
