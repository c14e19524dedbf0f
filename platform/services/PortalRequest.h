#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QTimer>
#include <chrono>

// One request to the desktop portal, whose answer comes as a signal of an object of its own, once the user
// has said what there is to say. Destroys itself when it is told.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    // As the portal numbers them.
    enum class Answer { Done = 0, Cancelled = 1, Failed = 2 };
    using Told = std::function<void(Answer)>;

    struct Limits
    {
        // For the portal to take the request,
        std::chrono::milliseconds taking{5000};
        // and then to answer it. One that doesn't is taken back.
        std::chrono::milliseconds answering{30000};
    };

    // Calls `method`, whose arguments are a parent window and `options`, and tells how it went, later and
    // once; a portal that is missing or silent has failed. `owner` gone: untold.
    static void send(const QDBusConnection& bus, const QString& interface, const QString& method,
                     const QVariantMap& options, const Limits& limits, Told told, QObject& owner);

private:
    PortalRequest(QDBusConnection bus, const Limits& limits, Told told, QObject& owner);
    void call(const QString& interface, const QString& method, QVariantMap options);
    void taken(const QDBusMessage& reply);
    Q_SLOT void answered(uint response, const QVariantMap& results);
    void takeBack();
    void finish(Answer answer);

    QDBusConnection bus;
    Limits limits;
    Told told;
    // The object that answers.
    QString handle;
    QTimer clock;
};
