#include "model/AppDelegate.h"
#include "platform/foundation/TerminationSignals.h"
#include "platform/services/Device.h"
#include "storyboard/MainWindow.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("marrowvale"));
    QApplication::setApplicationDisplayName(QStringLiteral("Marrowvale"));
    QApplication::setDesktopFileName(QStringLiteral("marrowvale"));
    quitAtTerminationSignals(application);

    const auto device = makeLinuxDevice();
    AppDelegate delegate;
    if (!delegate.didFinishLaunchingWithOptions())
        return 1;
    MainWindow window;
    window.show();
    return QApplication::exec();
}
