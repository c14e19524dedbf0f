#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>
#include <optional>

// The settings part of a desktop portal, on a bus of the test's own.
class StandInPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    // Answers from its making on, to whoever asks on `bus`.
    explicit StandInPortal(QDBusConnection connection);

    // Tells the bus that a setting changed.
    void tellChange(const QString& group, const QString& key, uint value);

    // What Read answers; absent: it never does.
    std::optional<uint> scheme;
    int asked = 0;

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    QDBusVariant Read(const QString& group, const QString& key);

private:
    QDBusConnection bus;
};
