#include "platform/services/Device.h"
#include "platform/services/LinuxPasteboard.h"
#include "tests/services/FakePrograms.h"
#include "tests/services/PrivateBus.h"
#include "tests/support/Home.h"

#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>
#include <gmock/gmock.h>

namespace {

// A desktop whose one program, which logs what it is given, is the default for `scheme`'s addresses.
void installHandlerFor(const QString& scheme)
{
    FakePrograms::install("handler");
    const QString applications = qEnvironmentVariable("XDG_DATA_HOME") + "/applications";
    ASSERT_TRUE(QDir().mkpath(applications));
    const QString type = "x-scheme-handler/" + scheme;
    writeFile(applications + "/handler.desktop", "[Desktop Entry]\nType=Application\nName=Handler\nExec=" +
                                                     FakePrograms::path("handler").toUtf8() +
                                                     " %u\nMimeType=" + type.toUtf8() + ";\n");
    writeFile(qEnvironmentVariable("XDG_CONFIG_HOME") + "/mimeapps.list",
              "[Default Applications]\n" + type.toUtf8() + "=handler.desktop\n");
}

// What the handler of `scheme` is started with for a text, or what can't be done for lack of one.
void composeWithHandlerFor(const QString& scheme)
{
    const FakePrograms programs;
    installHandlerFor(scheme);
    const auto device = makeLinuxDevice();
    if (!device->mail->canSendMail())
        std::fputs("no mail, ", stderr);
    const bool isComposed = device->textMessages->compose("A&B?\n%0A=é");
    if (!device->textMessages->canSendText())
        std::fputs("no texts, ", stderr);
    const auto started = [] { return FakePrograms::argumentsOf("handler"); };
    if (isComposed && comesTrue([&] { return !started().isEmpty(); }))
        std::fputs(started().join('|').toUtf8().constData(), stderr);
    std::fputs(device->addressOpener->open(QUrl("https://x.example/?a=b&c")) ? ", web" : ", no web", stderr);
    std::exit(0);
}

// The desktop's programs are read once a process, so each case has one of its own.
TEST(LinuxDeviceDeathTest, TextsGoToTheProgramForMessagesElseForMail)
{
    const Home elsewhere;
    qputenv("XDG_DATA_DIRS", elsewhere.path("none").toUtf8());
    qputenv("XDG_CONFIG_DIRS", elsewhere.path("none").toUtf8());
    const std::string body = "body=A%26B%3F%0D%0A%250A%3D%C3%A9";
    const auto exits = testing::ExitedWithCode(0);
    EXPECT_EXIT(composeWithHandlerFor("sms"), exits, testing::EndsWith("no mail, sms:?" + body + ", no web"));
    EXPECT_EXIT(composeWithHandlerFor("mailto"), exits, testing::EndsWith("mailto:?" + body + ", no web"));
    EXPECT_EXIT(composeWithHandlerFor("https"), exits, testing::EndsWith("no mail, no texts, , web"));
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

QByteArray encoded(const QImage& image, const char* format)
{
    QBuffer buffer;
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return buffer.data();
}

QImage plain(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    image.fill(Qt::red);
    return image;
}

TEST(LinuxDeviceTest, ThePasteboardIsTheDesktopsClipboard)
{
    const auto device = makeLinuxDevice();
    Pasteboard& pasteboard = *device->pasteboard;
    const QImage picture = plain({4, 3});
    pasteboard.setContent("Movie Name: Amélie", picture);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString("Movie Name: Amélie"));
    EXPECT_EQ(QGuiApplication::clipboard()->image(), picture);
    EXPECT_EQ(pasteboard.image(), picture);
    pasteboard.setContent("", {});
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
    EXPECT_TRUE(pasteboard.image().isNull());
}

struct Copied
{
    const char* what;
    std::vector<std::pair<QString, QByteArray>> content;
    QSize size;
};

QByteArray addressOf(const QString& name, const QByteArray& content)
{
    const QString path = QDir::home().filePath(name);
    writeFile(path, content);
    return QUrl::fromLocalFile(path).toEncoded() + "\r\n";
}

TEST(LinuxPasteboardTest, TakesPicturesInAnyFormAndCopiedFiles)
{
    const QByteArray png = encoded(plain({4, 3}), "PNG");
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'/>";
    const Copied cases[] = {
        {"a picture", {{"image/png", png}}, {4, 3}},
        {"a picture of 38 million pixels",
         {{"image/png", encoded(plain({6400, 6000}, QImage::Format_Mono), "PNG")}},
         {3200, 3000}},
        {"a picture and its address", {{"text/html", "<img src='x'>"}, {"image/jpeg", png}}, {4, 3}},
        {"a drawing and its picture", {{"image/svg+xml", svg}, {"image/png", png}}, {4, 3}},
        {"a drawing", {{"image/svg+xml", svg}}, {0, 0}},
        {"a copied picture",
         {{"text/uri-list", addressOf("a b.png", png)}, {"text/plain", "a b.png"}},
         {4, 3}},
        {"two files", {{"text/uri-list", addressOf("a.txt", "words") + addressOf("b.png", png)}}, {4, 3}},
        {"a copied text", {{"text/uri-list", addressOf("a.txt", "words")}}, {0, 0}},
        {"a place elsewhere", {{"text/uri-list", "https://example.org/a.png"}}, {0, 0}},
        {"a picture that is none", {{"image/png", "none"}}, {0, 0}},
    };
    for (const auto& [what, content, size] : cases) {
        QMimeData copied;
        for (const auto& [format, bytes] : content)
            copied.setData(format, bytes);
        EXPECT_EQ(imageIn(copied).size(), size) << what;
    }
}

} // namespace
