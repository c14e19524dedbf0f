#include "tests/support/Home.h"

#include <QDir>
#include <QFile>

Home::Home()
{
    const auto point = [this](const char* variable, const QString& folder) {
        QDir().mkpath(path(folder));
        qputenv(variable, path(folder).toUtf8());
    };
    point("HOME", QStringLiteral("."));
    point("TMPDIR", QStringLiteral("tmp"));
    point("XDG_DATA_HOME", QStringLiteral("data"));
    point("XDG_CONFIG_HOME", QStringLiteral("config"));
    point("XDG_CACHE_HOME", QStringLiteral("cache"));
    point("XDG_RUNTIME_DIR", QStringLiteral("runtime"));
    QFile::setPermissions(path(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

Home::~Home()
{
    outerTemporaryPlace.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", outerTemporaryPlace);
}
