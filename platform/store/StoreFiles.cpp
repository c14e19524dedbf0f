#include "platform/store/StoreFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr auto ownerOnlyFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr auto ownerOnlyDirectory = ownerOnlyFile | QFile::ExeOwner;

Status prepareDirectory(const QDir& directory)
{
    if (directory.exists())
        return success();
    const auto parent = QFileInfo(directory.path()).path();
    if (!QDir().mkpath(parent) || !QDir(parent).mkdir(directory.dirName(), ownerOnlyDirectory))
        return NSError{QStringLiteral("The directory for the store could not be made."), {}};
    return success();
}

class SystemFiles : public StoreFiles
{
public:
    [[nodiscard]] Status prepare(const QString& path) override
    {
        const QFileInfo file(path);
        if (const auto prepared = prepareDirectory(file.dir()); !prepared)
            return prepared;
        if (file.exists() && !file.isFile())
            return NSError{QStringLiteral("Something that is not a file is in the store's place."), {}};
        if (file.size() > 0)
            return success();
        QFile fresh(path);
        if (!fresh.open(QIODevice::ReadWrite, ownerOnlyFile) || !fresh.setPermissions(ownerOnlyFile))
            return NSError{QStringLiteral("The store could not be made."), {}};
        return success();
    }
    [[nodiscard]] bool exists(const QString& path) const override { return QFileInfo::exists(path); }
    [[nodiscard]] qint64 size(const QString& path) const override { return QFileInfo(path).size(); }
};

StoreFiles* replacement = nullptr;

} // namespace

StoreFiles& StoreFiles::current()
{
    static SystemFiles systemFiles;
    return replacement != nullptr ? *replacement : systemFiles;
}

void StoreFiles::setCurrent(StoreFiles* files)
{
    replacement = files;
}
