#pragma once

#include <QTemporaryDir>

// A home directory that lives as long as the object: HOME, TMPDIR and the XDG base directories point into it.
// A process started meanwhile has its own homes in this one, so what a killed process leaves goes with it.
class Home
{
public:
    Home();
    ~Home();
    Q_DISABLE_COPY_MOVE(Home)

    [[nodiscard]] QString path(const QString& relative) const { return directory.filePath(relative); }

private:
    QByteArray outerTemporaryPlace = qgetenv("TMPDIR");
    QTemporaryDir directory;
};
