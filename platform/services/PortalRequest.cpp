#include "platform/services/PortalRequest.h"

#include "platform/services/Portal.h"

#include <QDBusPendingCallWatcher>

namespace {

const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

QString nextToken()
{
    static int count = 0;
    return QStringLiteral("marrowvale%1").arg(++count);
}

// Known beforehand, so that no answer is lost.
QString handleFor(const QDBusConnection& bus, const QString& token)
{
    const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    return portalPath + QStringLiteral("/request/") + sender + QLatin1Char('/') + token;
}

} // namespace

void PortalRequest::send(const QDBusConnection& bus, const QString& interface, const QString& method,
                         const QVariantMap& options, const Limits& limits, Told told, QObject& owner)
{
    auto* request = new PortalRequest(bus, limits, std::move(told), owner);
    request->call(interface, method, options);
}

PortalRequest::PortalRequest(QDBusConnection bus, const Limits& limits, Told told, QObject& owner)
    : QObject(&owner)
    , bus(std::move(bus))
    , limits(limits)
    , told(std::move(told))
{
    clock.setSingleShot(true);
    connect(&clock, &QTimer::timeout, this, &PortalRequest::takeBack);
}

void PortalRequest::call(const QString& interface, const QString& method, QVariantMap options)
{
    const QString token = nextToken();
    options.insert(QStringLiteral("handle_token"), token);
    handle = handleFor(bus, token);
    bus.connect(portalService, handle, requestInterface, QStringLiteral("Response"), this,
                SLOT(answered(uint, QVariantMap)));
    QDBusMessage message = QDBusMessage::createMethodCall(portalService, portalPath, interface, method);
    message << QString() << options;
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(message, int(limits.taking.count())), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] { taken(call->reply()); });
}

void PortalRequest::taken(const QDBusMessage& reply)
{
    if (reply.type() == QDBusMessage::ReplyMessage)
        clock.start(limits.answering);
    else
        finish(Answer::Failed);
}

void PortalRequest::answered(uint response, const QVariantMap& /*results*/)
{
    finish(response < uint(Answer::Failed) ? Answer(response) : Answer::Failed);
}

void PortalRequest::takeBack()
{
    bus.send(
        QDBusMessage::createMethodCall(portalService, handle, requestInterface, QStringLiteral("Close")));
    finish(Answer::Failed);
}

void PortalRequest::finish(Answer answer)
{
    clock.stop();
    deleteLater();
    if (const auto tell = std::exchange(told, nullptr))
        tell(answer);
}
