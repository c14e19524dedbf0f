#pragma once

#include <QTemporaryDir>

// The home directory of one tour, in the output folder and gone with the object. The environment's home and
// data folders are in it from then on, and the language and time zone are those that the tour expects.
class TourHome
{
public:
    explicit TourHome(const QString& outputFolder);

    [[nodiscard]] QString path(const QString& relative) const { return directory.filePath(relative); }

private:
    QTemporaryDir directory;
};
