#include "platform/store/NSPersistentContainer.h"

#include "platform/store/Database.h"
#include "platform/store/StoreFile.h"
#include "platform/store/StoreRest.h"

#include <QDir>
#include <QStandardPaths>

NSPersistentContainer::NSPersistentContainer(QString name, const NSManagedObjectModel& model)
    : containerName(std::move(name))
    , managedObjectModel(model)
{
}

// The context's connection is closed before the store comes to rest for the last time.
NSPersistentContainer::~NSPersistentContainer() = default;

QString NSPersistentContainer::defaultDirectory() const
{
    const auto data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return data + QLatin1Char('/') + containerName.toLower();
}

QString NSPersistentContainer::storePath(const QString& directory) const
{
    return QDir(directory).absoluteFilePath(containerName + QStringLiteral(".sqlite"));
}

void NSPersistentContainer::noteReplacedContent()
{
    viewContext().reset();
    rest->noteSave(success());
}

Status NSPersistentContainer::loadPersistentStores(const QString& directory)
{
    const auto path = storePath(directory);
    auto opened = openStoreFile(path, managedObjectModel, migrationHandler);
    if (!opened)
        return opened.error();
    context = std::make_unique<NSManagedObjectContext>(managedObjectModel, std::move(opened).value());
    rest = std::make_unique<StoreRest>(path);
    context->addSaveHandler([this](const Status& saved) { rest->noteSave(saved); });
    return success();
}

NSManagedObjectContext& NSPersistentContainer::viewContext() const
{
    if (!context)
        fatalError(QStringLiteral("The container %1 has not loaded its stores").arg(containerName));
    return *context;
}
