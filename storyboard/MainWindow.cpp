#include "storyboard/MainWindow.h"

#include "model/AppDelegate.h"
#include "platform/foundation/Pool.h"
#include "platform/toolkit/UIAlertController.h"
#include "platform/toolkit/UIBarButtonItem.h"
#include "storyboard/SceneStage.h"
#include "storyboard/controls/SymbolProvider.h"

#include <QFontMetricsF>
#include <QQmlEngine>
#include <QQuickItem>

namespace {

constexpr QSize phoneSize(420, 860);
constexpr QSize smallestSize(360, 480);

// The first text waits until the desktop's fonts are listed, which takes as long as reading the root layout:
// another core does it meanwhile.
void listFonts()
{
    Pool::allCores().start([] { static_cast<void>(QFontMetricsF(QFont()).height()); });
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
    auto& keeper = AppDelegate::shared().keeper();
    setInitialProperties({{QStringLiteral("stage"), QVariant::fromValue(sceneStage.get())},
                          {QStringLiteral("keeper"), QVariant::fromValue(&keeper)}});
    setSource(QUrl(QStringLiteral("qrc:/qt/qml/Marrowvale/Storyboard/Main.qml")));
    connect(sceneStage->navigation(), &UINavigationController::topChanged, &keeper,
            &CatalogueKeeper::tryAgain);
    sceneStage->navigation()->push(Storyboard::makeInitialViewController());
}

MainWindow::~MainWindow()
{
    // Layouts read their screens, which live on the stage: the root layout goes first.
    delete rootObject();
}

bool MainWindow::event(QEvent* event)
{
    if (event->type() == QEvent::Close && !mayClose()) {
        event->ignore();
        return true;
    }
    return QQuickView::event(event);
}

bool MainWindow::mayClose()
{
    auto& keeper = AppDelegate::shared().keeper();
    keeper.tryAgain();
    if (keeper.refusedCount() == 0 || closesAnyway)
        return true;
    if (question == nullptr)
        askBeforeClosing(keeper.refusedCount());
    return false;
}

void MainWindow::askBeforeClosing(std::size_t changes)
{
    const QString message = changes == 1 ? QStringLiteral("1 change is not saved.")
                                         : QStringLiteral("%1 changes are not saved.").arg(changes);
    const auto closeAnyway = [this] {
        closesAnyway = true;
        close();
    };
    const std::vector<UIAction> actions{
        {.title = QStringLiteral("Keep Open"), .style = UIAction::Style::Cancel},
        {.title = QStringLiteral("Close Anyway"),
         .handler = closeAnyway,
         .style = UIAction::Style::Destructive}};
    auto alert = std::make_unique<UIAlertController>(QStringLiteral("Not Saved"), message, actions);
    question = alert.get();
    navigationController().topViewController()->present(std::move(alert));
}

UIWindowScene::ActivationState MainWindow::activationState() const
{
    return isActive() ? ActivationState::ForegroundActive : ActivationState::ForegroundInactive;
}

UINavigationController& MainWindow::navigationController()
{
    return *sceneStage->navigation();
}
