#include "storyboard/MainWindow.h"

#include "platform/toolkit/UIBarButtonItem.h"
#include "storyboard/SceneStage.h"
#include "storyboard/controls/SymbolProvider.h"

#include <QFontMetricsF>
#include <QQmlEngine>
#include <QQuickItem>
#include <QThreadPool>

namespace {

constexpr QSize phoneSize(420, 860);
constexpr QSize smallestSize(360, 480);

// The first text waits until the desktop's fonts are listed, which takes as long as reading the root layout:
// another core does it meanwhile.
void listFonts()
{
    QThreadPool::globalInstance()->start([] { static_cast<void>(QFontMetricsF(QFont()).height()); });
}

} // namespace

MainWindow::MainWindow()
{
    listFonts();
    setTitle(QStringLiteral("Marrowvale"));
    setResizeMode(SizeRootObjectToView);
    setMinimumSize(smallestSize);
    resize(phoneSize);
    engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine()->addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
    sceneStage = std::make_unique<SceneStage>(*engine());
    setInitialProperties({{QStringLiteral("stage"), QVariant::fromValue(sceneStage.get())}});
    setSource(QUrl(QStringLiteral("qrc:/qt/qml/Marrowvale/Storyboard/Main.qml")));
    sceneStage->navigation()->push(Storyboard::makeInitialViewController());
}

MainWindow::~MainWindow()
{
    // Layouts read their screens, which live on the stage: the root layout goes first.
    delete rootObject();
}

UIWindowScene::ActivationState MainWindow::activationState() const
{
    return isActive() ? ActivationState::ForegroundActive : ActivationState::ForegroundInactive;
}

UINavigationController& MainWindow::navigationController()
{
    return *sceneStage->navigation();
}
