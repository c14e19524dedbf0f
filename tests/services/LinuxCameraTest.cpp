#include "platform/services/LinuxCamera.h"
#include "tests/support/Home.h"

#include <QCoreApplication>
#include <QFile>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace {

constexpr const char* pluginFile = MARROWVALE_CAMERA_PLUGIN;

TEST(LinuxCameraTest, APluginThatIsMissingOrBrokenIsNoCamera)
{
    const Home home;
    QFile broken(home.path("broken.so"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no library");
    broken.close();
    LinuxCamera camera({home.path("missing.so"), broken.fileName()});
    for (int times = 0; times < 2; ++times) {
        EXPECT_FALSE(camera.isAvailable());
        camera.start([](const Result<QImage>&) { FAIL(); });
        camera.stop();
    }
}

TEST(LinuxCameraTest, ThePluginTellsThatThereIsNoCamera)
{
    LinuxCamera camera({"/nowhere.so", pluginFile});
    if (camera.isAvailable())
        GTEST_SKIP() << "No test turns somebody's camera on";
    QStringList told;
    const auto keep = [&](const Result<QImage>& seen) { told << seen.error().localizedDescription; };
    camera.start(keep);
    EXPECT_EQ(told, QStringList()) << "the caller is still asking";
    QCoreApplication::processEvents();
    EXPECT_EQ(told, QStringList("There is no camera available."));
    camera.start(keep);
    camera.stop();
    QCoreApplication::processEvents();
    EXPECT_EQ(told.size(), 1) << "it was stopped";
}

// Takes connections, as a server that hangs does, and never reads from them.
int startsBesideDeafSoundServer(const Home& home)
{
    const QByteArray path = home.path("pulse").toUtf8();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    if (bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        listen(server, 5) != 0)
        return 2;
    qputenv("PULSE_SERVER", "unix:" + path);
    LinuxCamera camera({pluginFile});
    return camera.isAvailable() ? 1 : 0;
}

TEST(LinuxCameraDeathTest, ASoundServerThatHangsDoesNotHangTheProgram)
{
    const Home home;
    EXPECT_EXIT(std::_Exit(startsBesideDeafSoundServer(home)), testing::ExitedWithCode(0), "");
}

} // namespace
