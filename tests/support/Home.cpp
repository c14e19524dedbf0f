#include "tests/support/Home.h"

#include <QDir>

Home::Home()
{
    const auto point = [this](const char* variable, const QString& folder) {
        QDir().mkpath(path(folder));
        qputenv(variable, path(folder).toUtf8());
    };
    point("HOME", QStringLiteral("."));
    point("XDG_DATA_HOME", QStringLiteral("data"));
    point("XDG_CONFIG_HOME", QStringLiteral("config"));
    point("XDG_CACHE_HOME", QStringLiteral("cache"));
}
