#include "tests/storyboard/ScreenReader.h"

#include <QProcess>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

// The built program on a display and a session bus of its own, with a screen reader on the bus beside it.
class ScreenReaderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_RUNTIME_DIR", environment.value("HOME"));
        environment.insert(
            "DISPLAY", ":" + started(display, "Xvfb",
                                     {"-displayfd", "1", "-screen", "0", "900x900x24", "-nolisten", "tcp"},
                                     environment));
        const QString address =
            started(sessionBus, "dbus-daemon", {"--session", "--nofork", "--print-address"}, environment);
        environment.insert("DBUS_SESSION_BUS_ADDRESS", address);
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        // The X11 keymap library copies names that end without a null character, within their length.
        environment.insert("ASAN_OPTIONS", environment.value("ASAN_OPTIONS") + ":strict_string_checks=0");
        reader = std::make_unique<ScreenReader>(QDBusConnection::connectToBus(address, "session"));
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(MARROWVALE_PROGRAM, QStringList());
        ASSERT_TRUE(program.waitForStarted());
    }

    void TearDown() override
    {
        reader.reset();
        QDBusConnection::disconnectFromBus("session");
        for (QProcess* process : {&program, &sessionBus, &display}) {
            process->kill();
            process->waitForFinished();
        }
    }

    // Starts `process` and returns the first line that it writes.
    static QString started(QProcess& process, const QString& name, const QStringList& arguments,
                           const QProcessEnvironment& environment)
    {
        process.setProcessEnvironment(environment);
        process.start(name, arguments);
        EXPECT_TRUE(process.waitForReadyRead()) << qPrintable(name);
        return QString::fromUtf8(process.readLine().trimmed());
    }

    bool isRunning() { return program.state() == QProcess::Running; }

    // Presses `button` until one of the name `sign` shows or, if `shows` is false, doesn't any more: a layout
    // on its way in or out takes no press. Returns false if the program ends first.
    bool pressUntil(const QString& button, const QString& sign, bool shows)
    {
        const auto isReached = [&] { return !isRunning() || reader->shows(sign) == shows; };
        // A press during a slide may be taken back when the layout has arrived.
        const auto lasts = [&] {
            constexpr int longerThanASlide = 400;
            if (isReached())
                QTest::qWait(longerThanASlide);
            return isReached();
        };
        for (int attempt = 0; attempt < 10 && !lasts(); ++attempt) {
            reader->press(button);
            (void)QTest::qWaitFor(isReached, 2000);
        }
        return isReached() && isRunning();
    }

    QProcess display;
    QProcess sessionBus;
    QProcess program;
    std::unique_ptr<ScreenReader> reader;
};

TEST_F(ScreenReaderTest, SeesScenesComeAndGo)
{
    ASSERT_TRUE(QTest::qWaitFor([&] { return reader->shows("Menu"); }, 20'000));
    for (const char* scene :
         {"Movie List", "Add Movie", "Settings", "Print", "Reference Lists", "Import/Export", "Rate/Share"}) {
        EXPECT_TRUE(pressUntil("Menu", scene, true)) << scene;
        EXPECT_TRUE(pressUntil(scene, scene, false)) << scene;
        ASSERT_TRUE(pressUntil("Back", "Back", false)) << scene;
    }
    EXPECT_GT(reader->changes(), 0) << "nobody listened";
    program.terminate();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
}

} // namespace
