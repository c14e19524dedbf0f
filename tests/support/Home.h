#pragma once

#include <QTemporaryDir>

// A home directory that lives as long as the object: HOME and the XDG base directories point into it.
class Home
{
public:
    Home();

    [[nodiscard]] QString path(const QString& relative) const { return directory.filePath(relative); }

private:
    QTemporaryDir directory;
};
