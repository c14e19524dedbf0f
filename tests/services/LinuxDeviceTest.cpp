#include "platform/services/Device.h"
#include "tests/support/Home.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPalette>
#include <gtest/gtest.h>

namespace {

// A desktop whose one program is the default for addresses of `scheme`.
void installHandlerFor(const QString& scheme)
{
    const auto write = [](const QString& path, const QString& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content.toUtf8());
    };
    const QString applications = qEnvironmentVariable("XDG_DATA_HOME") + "/applications";
    ASSERT_TRUE(QDir().mkpath(applications));
    const QString type = "x-scheme-handler/" + scheme;
    write(applications + "/handler.desktop",
          "[Desktop Entry]\nType=Application\nName=Handler\nExec=true %u\nMimeType=" + type + ";\n");
    write(qEnvironmentVariable("XDG_CONFIG_HOME") + "/mimeapps.list",
          "[Default Applications]\n" + type + "=handler.desktop\n");
}

int canSendTextWithHandlerFor(const QString& scheme)
{
    installHandlerFor(scheme);
    return makeLinuxDevice()->textMessages->canSendText() ? 1 : 0;
}

// The desktop's programs are read once a process, so each case has one of its own.
TEST(TextMessagesDeathTest, NeedAProgramForMessagesOrMail)
{
    const Home elsewhere;
    qputenv("XDG_DATA_DIRS", elsewhere.path("none").toUtf8());
    qputenv("XDG_CONFIG_DIRS", elsewhere.path("none").toUtf8());
    EXPECT_EXIT(std::exit(canSendTextWithHandlerFor("sms")), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(std::exit(canSendTextWithHandlerFor("mailto")), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(std::exit(canSendTextWithHandlerFor("https")), testing::ExitedWithCode(0), "");
}

int startsWithBus(const char* address)
{
    if (address == nullptr)
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    else
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QGuiApplication::setPalette(QPalette(Qt::black));
    return makeLinuxDevice()->interfaceStyle->isDark() ? 0 : 1;
}

TEST(LinuxDeviceDeathTest, WithoutASessionBusThePaletteDecides)
{
    const Home home;
    qputenv("XDG_RUNTIME_DIR", home.path("no-bus-here").toUtf8());
    EXPECT_EXIT(std::exit(startsWithBus(nullptr)), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(std::exit(startsWithBus("")), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(std::exit(startsWithBus("unix:path=/nowhere/bus")), testing::ExitedWithCode(0), "");
}

TEST(LinuxDeviceTest, ThePasteboardIsTheDesktopsClipboard)
{
    const auto device = makeLinuxDevice();
    Pasteboard& pasteboard = *device->pasteboard;
    pasteboard.setString("Movie Name: Amélie");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString("Movie Name: Amélie"));
    EXPECT_FALSE(pasteboard.hasImages());
    EXPECT_TRUE(pasteboard.image().isNull());

    QImage picture(4, 3, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    pasteboard.setImage(picture);
    EXPECT_EQ(QGuiApplication::clipboard()->image(), picture);
    EXPECT_TRUE(pasteboard.hasImages());
    EXPECT_EQ(pasteboard.image(), picture);
}

} // namespace
