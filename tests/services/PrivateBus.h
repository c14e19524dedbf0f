#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QProcess>
#include <gtest/gtest.h>

// Runs the event loop until `condition` holds. False only where something is broken: what is waited for takes
// milliseconds.
template <typename Condition>
bool comesTrue(Condition condition)
{
    const QDeadlineTimer broken(20000);
    while (!condition() && !broken.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return condition();
}

// A message bus that nobody else knows of, with a stand-in for the desktop portal on it.
template <typename Portal>
class PrivateBusTest : public testing::Test
{
protected:
    void SetUp() override
    {
        daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        ASSERT_TRUE(daemon.waitForReadyRead());
        address = QString::fromUtf8(daemon.readLine().trimmed());
        portal.emplace(connection("portal"));
    }

    void TearDown() override
    {
        portal.reset();
        for (const char* name : {"portal", "program"})
            QDBusConnection::disconnectFromBus(name);
        daemon.kill();
        daemon.waitForFinished();
    }

    [[nodiscard]] QDBusConnection connection(const QString& name) const
    {
        return QDBusConnection::connectToBus(address, name);
    }

    QProcess daemon;
    QString address;
    std::optional<Portal> portal;
};
