#include "tests/services/StandInMailPortal.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

const QString mailPortalPath = "/org/freedesktop/portal/desktop";

StandInMailPortal::File readDescriptor(const QDBusUnixFileDescriptor& descriptor)
{
    const int number = descriptor.fileDescriptor();
    QFile file;
    EXPECT_TRUE(file.open(number, QIODevice::ReadOnly));
    return {QFileInfo("/proc/self/fd/" + QString::number(number)).symLinkTarget(), file.readAll()};
}

} // namespace

StandInMailPortal::StandInMailPortal(QDBusConnection connection)
    : bus(std::move(connection))
{
    EXPECT_TRUE(bus.registerObject(mailPortalPath, this, QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
}

QDBusObjectPath StandInMailPortal::ComposeEmail(const QString& /*parentWindow*/, const QVariantMap& given)
{
    ++asked;
    options = given;
    files.clear();
    const auto descriptors =
        qdbus_cast<QList<QDBusUnixFileDescriptor>>(given.value("attachment_fds").value<QDBusArgument>());
    for (const QDBusUnixFileDescriptor& descriptor : descriptors)
        files.push_back(readDescriptor(descriptor));
    if (manner == Manner::NeverTakes)
        setDelayedReply(true);
    if (manner == Manner::Refuses)
        sendErrorReply(QDBusError::Failed, "No mail today");
    const QString caller = message().service().mid(1).replace('.', '_');
    const QString token = given.value("handle_token").toString();
    const QString handle = mailPortalPath + "/request/" + caller + "/" + token;
    if (manner == Manner::Answers)
        QTimer::singleShot(0, this, [this, handle] { respond(handle); });
    return QDBusObjectPath(handle);
}

void StandInMailPortal::respond(const QString& handle)
{
    QDBusMessage answer = QDBusMessage::createSignal(handle, "org.freedesktop.portal.Request", "Response");
    answer << response << QVariantMap();
    EXPECT_TRUE(bus.send(answer));
}
