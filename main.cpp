#include "model/AppDelegate.h"
#include "platform/foundation/TerminationSignals.h"
#include "platform/services/Device.h"
#include "storyboard/MainWindow.h"

#include <QApplication>

namespace {

// A session waits longer than that for its programs.
constexpr std::chrono::seconds patienceAtLogOut(2);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("marrowvale"));
    QApplication::setApplicationDisplayName(QStringLiteral("Marrowvale"));
    QApplication::setDesktopFileName(QStringLiteral("marrowvale"));

    const auto device = makeLinuxDevice();
    AppDelegate delegate;
    quitAtTerminationSignals(application, [&delegate] { delegate.keeper().insist(patienceAtLogOut); });
    if (!delegate.didFinishLaunchingWithOptions())
        return 1;
    MainWindow window;
    window.show();
    return QApplication::exec();
}
