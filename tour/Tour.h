#pragma once

#include "tour/TourDevice.h"
#include "tour/TourHome.h"
#include "tour/Visitor.h"

// What a chapter of the tour works with.
class Tour
{
public:
    // `window` shows the home menu. The pictures' names begin with that of the chapter.
    Tour(QQuickView& window, TourDevice& device, const TourHome& home, QString exchangeFile,
         QString pictureStart);

    // Says what comes next. Whatever the layouts complained of before ends the tour here.
    void step(const QString& what);
    // Keeps the screen in light and dark, as wide as a phone and a tablet:
    // "<chapter>-<nn>-<screen>-light-390.png". A picture with one of the faults that
    // SceneProperties::faultsIn finds is a TourError.
    void picture(const QString& screen);

    // From the home menu.
    void choose(const QString& entry);

    Visitor visitor;
    TourDevice& device;
    const TourHome& home;
    const QString exchangeFile;

private:
    void keep(const QString& screen, bool dark, const QSize& size);

    QQuickView& window;
    QString pictureStart;
    int pictures = 0;
};
