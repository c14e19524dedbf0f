#include "storyboard/SceneStage.h"

#include "platform/foundation/Console.h"
#include "platform/services/Device.h"
#include "platform/services/UIActivityViewController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "storyboard/LayoutBinding.h"
#include "storyboard/SceneTable.h"

#include <QQmlComponent>
#include <QQuickItem>

namespace {

QUrl layoutUrlFor(const UIViewController& controller)
{
    const QString screenClass = QString::fromLatin1(controller.metaObject()->className());
    for (const SceneDescription& scene : sceneDescriptions())
        if (scene.screenClass == screenClass)
            return QUrl(QStringLiteral("qrc:/qt/qml/Marrowvale/Storyboard/%1.qml").arg(scene.layout));
    fatalError(screenClass + QStringLiteral(" has no layout"));
}

} // namespace

SceneStage::SceneStage(QQmlEngine& engine, QObject* parent)
    : QObject(parent)
    , engine(engine)
    , storyboard([this](UIViewController& controller) { loadLayout(controller); })
    , navigationController(storyboard)
{
    connect(&navigationController, &UINavigationController::pushed, this,
            [this](UIViewController* controller) { Q_EMIT pushed(items.value(controller)); });
    connect(&navigationController, &UINavigationController::popped, this,
            [this](const std::shared_ptr<UIViewController>& controller) {
                QQuickItem* item = items.take(controller.get());
                leaving.insert(item, controller);
                Q_EMIT popped(item);
            });
}

SceneStage::~SceneStage()
{
    qDeleteAll(leaving.keys());
    qDeleteAll(items);
}

InterfaceStyle* SceneStage::interfaceStyle()
{
    return Device::current().interfaceStyle.get();
}

QString SceneStage::presentation(UIViewController* controller) const
{
    if (qobject_cast<UIAlertController*>(controller) != nullptr)
        return QStringLiteral("alert");
    if (qobject_cast<UIActivityViewController*>(controller) != nullptr)
        return QStringLiteral("activity");
    return {};
}

void SceneStage::release(QQuickItem* item)
{
    if (!leaving.contains(item))
        return;
    // The layout goes first: its bindings read the screen.
    delete item;
    leaving.remove(item);
}

void SceneStage::loadLayout(UIViewController& controller)
{
    QQuickItem* item = makeItem(controller);
    const QStringList missing = bindLayout(*item, controller, storyboard);
    if (!missing.isEmpty())
        fatalError(QStringLiteral("The layout of %1 lacks: %2")
                       .arg(QString::fromLatin1(controller.metaObject()->className()),
                            missing.join(QStringLiteral(", "))));
    items.insert(&controller, item);
}

QQuickItem* SceneStage::makeItem(UIViewController& controller)
{
    QQmlEngine::setObjectOwnership(&controller, QQmlEngine::CppOwnership);
    QQmlComponent component(&engine, layoutUrlFor(controller));
    if (!component.isReady())
        fatalError(component.isLoading()
                       ? QStringLiteral("A layout needs itself: ") + component.url().toString()
                       : component.errorString());
    QObject* made = component.createWithInitialProperties(
        {{QStringLiteral("screen"), QVariant::fromValue<QObject*>(&controller)}});
    auto* item = qobject_cast<QQuickItem*>(made);
    if (item == nullptr)
        fatalError(component.errorString());
    QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
    return item;
}
