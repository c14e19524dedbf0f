#include "tour/TourHome.h"

#include "tour/TourError.h"

#include <QDir>
#include <QFile>
#include <QLocale>

TourHome::TourHome(const QString& outputFolder)
    : directory(QDir(outputFolder).filePath("home-XXXXXX"))
{
    if (!directory.isValid())
        throw TourError("No home directory: " + directory.errorString());
    const auto point = [this](const char* variable, const QString& folder) {
        QDir().mkpath(path(folder));
        qputenv(variable, QDir(path(folder)).absolutePath().toUtf8());
    };
    point("HOME", ".");
    point("XDG_DATA_HOME", "data");
    point("XDG_CONFIG_HOME", "config");
    point("XDG_CACHE_HOME", "cache");
    point("XDG_RUNTIME_DIR", "runtime");
    QFile::setPermissions(path("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("LC_ALL", "en_US.UTF-8");
    qputenv("LANGUAGE", "en_US");
    qputenv("TZ", "America/New_York");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}
