#include "platform/store/StorePlace.h"

#include "platform/store/Database.h"
#include "platform/store/StoreGeneration.h"

#include <QFile>
#include <sys/stat.h>

namespace {

const auto replacedKey = QStringLiteral("StoreReplaced");

NSError replacedError(const QString& path)
{
    return {QStringLiteral("The store's file was replaced or removed while it was open."),
            {{replacedKey, true}, {QStringLiteral("path"), path}}};
}

} // namespace

StorePlace::StorePlace(const QString& path)
    : path(QFile::encodeName(path))
    , known(look())
{
}

Status StorePlace::check(const Database& open)
{
    if (path.isEmpty())
        return success();
    if (open.isMovedAway())
        return replacedError(open.path());
    const State present = look();
    if (present == known)
        return success();
    if (!logBelongsToFile(open.path()))
        return replacedError(open.path());
    known = present;
    return success();
}

StorePlace::State StorePlace::look() const
{
    struct stat found = {};
    if (::stat(path.constData(), &found) != 0)
        return {};
    return {found.st_size, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
}

bool isStoreReplaced(const NSError& error)
{
    return error.userInfo.contains(replacedKey);
}
