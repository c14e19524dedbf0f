#include "model/AppDelegate.h"

#include "model/MarrowvaleModel.h"
#include "platform/foundation/Console.h"

namespace {

AppDelegate* sharedDelegate = nullptr;

void requireSuccess(const Status& status)
{
    if (!status)
        fatalError(QStringLiteral("Unresolved error ") + status.error().debugText());
}

std::unique_ptr<NSPersistentContainer> makeContainer()
{
    return std::make_unique<NSPersistentContainer>(QStringLiteral("Marrowvale"),
                                                   MarrowvaleModel::description());
}

} // namespace

QString AppDelegate::catalogueFolder()
{
    return makeContainer()->defaultDirectory();
}

AppDelegate::AppDelegate()
{
    sharedDelegate = this;
}

AppDelegate::~AppDelegate()
{
    catalogueKeeper.tryAgain();
    for (const auto& change : catalogueKeeper.refusedChanges())
        consoleError(QStringLiteral("Not saved: ") + change);
    sharedDelegate = nullptr;
}

AppDelegate& AppDelegate::shared()
{
    if (!sharedDelegate)
        fatalError(QStringLiteral("There is no application delegate"));
    return *sharedDelegate;
}

bool AppDelegate::didFinishLaunchingWithOptions()
{
    return true;
}

NSPersistentContainer& AppDelegate::persistentContainer()
{
    if (!container) {
        auto opened = makeContainer();
        requireSuccess(opened->loadPersistentStores());
        container = std::move(opened);
        catalogueKeeper.watch(container->viewContext());
    }
    return *container;
}

void AppDelegate::saveContext()
{
    auto& context = persistentContainer().viewContext();
    if (context.hasChanges())
        requireSuccess(context.save());
}
