#include "bench/BenchHome.h"

#include "bench/BenchError.h"

#include <QDir>

BenchHome::BenchHome()
    : directory(QDir::temp().filePath(QStringLiteral("marrowvale-bench")))
{
    if (!directory.isValid())
        throw BenchError(directory.errorString());
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, directory.path().toUtf8());
    useDataFolder(QStringLiteral("data"));
}

QString BenchHome::useDataFolder(const QString& name)
{
    const auto path = directory.filePath(name);
    if (!QDir().mkpath(path))
        throw BenchError(QStringLiteral("The folder \"%1\" cannot be made").arg(path));
    qputenv("XDG_DATA_HOME", path.toUtf8());
    return path;
}
