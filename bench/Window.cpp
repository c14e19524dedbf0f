// Shows one window, of the program or an empty one, and prints when its first frame was shown (nanoseconds of
// the steady clock) and how much memory the process has once nothing moves any more (KiB resident).
//
// marrowvale_bench_window empty   a window with nothing in it
// marrowvale_bench_window start   the program as it starts
// marrowvale_bench_window list    the program when it shows the movie list
#include "model/AppDelegate.h"
#include "platform/services/Device.h"
#include "storyboard/MainWindow.h"
#include "storyboard/SceneStage.h"

#include <QApplication>
#include <QFile>
#include <QQmlApplicationEngine>
#include <QTimer>
#include <chrono>
#include <cstdio>

namespace {

constexpr int wrongUse = 2;

long long steadyNanoseconds()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

long long residentKibibytes()
{
    QFile memory(QStringLiteral("/proc/self/smaps_rollup"));
    if (!memory.open(QIODevice::ReadOnly))
        return 0;
    const auto lines = memory.readAll().split('\n');
    const auto resident = std::find_if(lines.begin(), lines.end(),
                                       [](const QByteArray& line) { return line.startsWith("Rss:"); });
    return resident == lines.end() ? 0 : resident->simplified().split(' ')[1].toLongLong();
}

void tellFiguresAndQuit(long long firstFrame)
{
    std::printf("%lld %lld\n", firstFrame, residentKibibytes());
    QCoreApplication::quit();
}

// Shows the window. After the first frame comes `next`, and a while later the end.
int measure(QQuickWindow& window, const std::function<void()>& next)
{
    constexpr std::chrono::milliseconds settlingTime(700);
    const auto noteFirstFrame = [&window, &next, settlingTime] {
        const auto firstFrame = steadyNanoseconds();
        const auto goOn = [&window, &next, settlingTime, firstFrame] {
            next();
            QTimer::singleShot(settlingTime, &window, [firstFrame] { tellFiguresAndQuit(firstFrame); });
        };
        QMetaObject::invokeMethod(&window, goOn, Qt::QueuedConnection);
    };
    // On the thread that draws, in that moment.
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, noteFirstFrame,
                     static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection));
    window.show();
    return QCoreApplication::exec();
}

int measureEmptyWindow(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { width: 420; height: 860 }");
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    return window ? measure(*window, [] {}) : wrongUse;
}

int measureProgram(int argc, char** argv, bool showsList)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("marrowvale"));
    QApplication::setApplicationDisplayName(QStringLiteral("Marrowvale"));
    QApplication::setDesktopFileName(QStringLiteral("marrowvale"));

    const auto device = makeLinuxDevice();
    AppDelegate delegate;
    if (!delegate.didFinishLaunchingWithOptions())
        return wrongUse;
    MainWindow window;
    return measure(window, [&] {
        if (showsList)
            window.stage().navigation()->topViewController()->performSegue(QStringLiteral("MovieList"));
    });
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray mode(argc == 2 ? argv[1] : "");
    if (mode == "empty")
        return measureEmptyWindow(argc, argv);
    if (mode == "start" || mode == "list")
        return measureProgram(argc, argv, mode == "list");
    std::fputs("usage: marrowvale_bench_window empty|start|list\n", stderr);
    return wrongUse;
}
