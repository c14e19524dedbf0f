#include "model/AppDelegate.h"
#include "platform/foundation/Console.h"
#include "platform/foundation/TerminationSignals.h"
#include "platform/services/Device.h"
#include "platform/services/SingleInstance.h"
#include "storyboard/MainWindow.h"

#include <QApplication>
#include <sys/resource.h>

namespace {

// A session waits longer than that for its programs.
constexpr std::chrono::seconds patienceAtLogOut(2);

// A memory image would hold the user's catalogue. For developers, MARROWVALE_CORE_DUMPS lets it be written.
void leaveNoMemoryImage()
{
    if (qEnvironmentVariableIsSet("MARROWVALE_CORE_DUMPS"))
        return;
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
}

void bringToFront(MainWindow& window, const QString& token)
{
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    window.show();
    window.raise();
    window.requestActivate();
}

int wakeOther(const SingleInstance& instance)
{
    if (instance.wakeFirst())
        return 0;
    consoleError(QStringLiteral("Marrowvale is already open with this catalogue."));
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    leaveNoMemoryImage();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("marrowvale"));
    QApplication::setApplicationDisplayName(QStringLiteral("Marrowvale"));
    QApplication::setDesktopFileName(QStringLiteral("marrowvale"));

    const SingleInstance instance(AppDelegate::catalogueFolder(),
                                  QStringLiteral("example.marrowvale.Marrowvale"));
    if (!instance.isFirst())
        return wakeOther(instance);
    const auto device = makeLinuxDevice();
    AppDelegate delegate;
    quitAtTerminationSignals(application, [&delegate] { delegate.keeper().insist(patienceAtLogOut); });
    if (!delegate.didFinishLaunchingWithOptions())
        return 1;
    MainWindow window;
    QObject::connect(&instance, &SingleInstance::activated, &window,
                     [&window](const QString& token) { bringToFront(window, token); });
    window.show();
    return QApplication::exec();
}
