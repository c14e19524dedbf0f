#pragma once

#include <QStringList>

// Notes which files this process opens, by standing in for the C library's functions that open files. A
// program that uses the class opens all its files through it.
class OpenedFiles
{
public:
    OpenedFiles();
    ~OpenedFiles();
    Q_DISABLE_COPY_MOVE(OpenedFiles)

    // The paths opened since construction by this thread, successfully or not.
    [[nodiscard]] QStringList paths() const;
};
