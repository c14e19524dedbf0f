#include "platform/services/SingleInstance.h"

#include <QCryptographicHash>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>

namespace {

const auto objectPath = QStringLiteral("/org/freedesktop/Application");

QString nameFor(const QString& program, const QString& folder)
{
    const auto hash = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha256).toHex();
    return program + QStringLiteral(".in") + QString::fromLatin1(hash.left(16));
}

// Makes the folder if it is missing.
QString lockFileIn(const QString& folder)
{
    const QFileInfo place(folder);
    if (!place.exists() && QDir().mkpath(place.path()))
        QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder + QStringLiteral("/running.lock");
}

// False only where another program holds the lock.
bool takeOver(QLockFile& lock)
{
    // Only a lock whose program no longer runs can be taken from it.
    lock.setStaleLockTime(0);
    return lock.tryLock(0) || lock.error() != QLockFile::LockFailedError;
}

} // namespace

SingleInstance::SingleInstance(const QString& folder, const QString& name)
    : busName(nameFor(name, QDir::cleanPath(folder)))
    , lock(lockFileIn(folder))
    , first(takeOver(lock))
{
    if (first)
        listen();
}

void SingleInstance::listen()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected() &&
        bus.registerObject(objectPath, this, QDBusConnection::ExportScriptableInvokables))
        bus.registerService(busName);
}

bool SingleInstance::wakeFirst() const
{
    constexpr int longest = 1000;
    auto call = QDBusMessage::createMethodCall(
        busName, objectPath, QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    const auto token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    call << QVariantMap{{QStringLiteral("activation-token"), token}};
    return QDBusConnection::sessionBus().call(call, QDBus::Block, longest).type() ==
           QDBusMessage::ReplyMessage;
}

void SingleInstance::Activate(const QVariantMap& platformData)
{
    Q_EMIT activated(platformData.value(QStringLiteral("activation-token")).toString());
}
