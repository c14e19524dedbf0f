#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>
#include <optional>

// The mail part of a desktop portal, on a bus of the test's own.
class StandInMailPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Email")

public:
    explicit StandInMailPortal(QDBusConnection connection);

    enum class Manner { Answers, Refuses, NeverTakes, NeverAnswers };
    Manner manner = Manner::Answers;
    uint response = 0;

    struct File
    {
        QString path;
        QByteArray content;
    };
    int asked = 0;
    QVariantMap options;
    std::vector<File> files;

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    QDBusObjectPath ComposeEmail(const QString& parentWindow, const QVariantMap& given);

private:
    void respond(const QString& handle);

    QDBusConnection bus;
};
