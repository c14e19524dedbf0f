#pragma once

#include <QHashSeed>
#include <QLocale>

// Makes everything that a test may depend on without saying so the same on every machine. Call it before
// there is an application.
inline void pinSurroundings()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("LANGUAGE", "en_US");
    qputenv("TZ", "America/New_York");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    QHashSeed::setDeterministicGlobalSeed();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}
