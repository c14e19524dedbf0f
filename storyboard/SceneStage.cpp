#include "storyboard/SceneStage.h"

#include "platform/foundation/Console.h"
#include "platform/services/Device.h"
#include "platform/services/UIActivityViewController.h"
#include "platform/services/UIImagePickerController.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "platform/toolkit/UITabBarController.h"
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
}

SceneStage::~SceneStage()
{
    // While the screens that the layouts read are still there; layouts before the stages that they show.
    delete stages.take(&navigationController);
    qDeleteAll(stages.values());
}

NavigationStage* SceneStage::stageOf(UINavigationController* controller)
{
    NavigationStage*& stage = stages[controller];
    if (stage == nullptr) {
        stage = new NavigationStage(*controller, this);
        connect(controller, &QObject::destroyed, stage,
                [this, controller] { delete stages.take(controller); });
    }
    return stage;
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
    if (qobject_cast<UIImagePickerController*>(controller) != nullptr)
        return QStringLiteral("camera");
    return {};
}

void SceneStage::loadLayout(UIViewController& controller)
{
    QQuickItem* item = makeItem(controller);
    const QStringList missing = bindLayout(*item, controller, storyboard);
    if (!missing.isEmpty())
        fatalError(QStringLiteral("The layout of %1 lacks: %2")
                       .arg(QString::fromLatin1(controller.metaObject()->className()),
                            missing.join(QStringLiteral(", "))));
    stageOf(controller.navigationController())->add(controller, item);
}

QQuickItem* SceneStage::makeItem(UIViewController& controller)
{
    QQmlEngine::setObjectOwnership(&controller, QQmlEngine::CppOwnership);
    QQmlComponent component(&engine, layoutUrlFor(controller));
    if (!component.isReady())
        fatalError(component.isLoading()
                       ? QStringLiteral("A layout needs itself: ") + component.url().toString()
                       : component.errorString());
    QVariantMap properties{{QStringLiteral("screen"), QVariant::fromValue<QObject*>(&controller)}};
    if (qobject_cast<UITabBarController*>(&controller) != nullptr)
        properties.insert(QStringLiteral("stage"), QVariant::fromValue(this));
    QObject* made = component.createWithInitialProperties(properties);
    auto* item = qobject_cast<QQuickItem*>(made);
    if (item == nullptr)
        fatalError(component.errorString());
    QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
    return item;
}
