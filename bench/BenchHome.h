#pragma once

#include <QTemporaryDir>

// A home directory for the catalogues measured, taken away with the object; it stands under $TMPDIR. HOME and
// the XDG base directories of this process and of those that it starts point into it.
class BenchHome
{
public:
    BenchHome();

    // The folder `name`, new or not, becomes the one that data is kept in. Answers its path.
    QString useDataFolder(const QString& name);

private:
    QTemporaryDir directory;
};
