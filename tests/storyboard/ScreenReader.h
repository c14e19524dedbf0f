#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>

// An accessible object on the accessibility bus: who has it and where.
struct AccessibleReference
{
    QString service;
    QDBusObjectPath path;
};
Q_DECLARE_METATYPE(AccessibleReference)

inline QDBusArgument& operator<<(QDBusArgument& argument, const AccessibleReference& reference)
{
    argument.beginStructure();
    argument << reference.service << reference.path;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, AccessibleReference& reference)
{
    argument.beginStructure();
    argument >> reference.service >> reference.path;
    argument.endStructure();
    return argument;
}

// A client of the accessibility bus that listens to every change of a state and presses buttons.
class ScreenReader : public QObject
{
    Q_OBJECT

public:
    // `session` must be a connected session bus; it starts the accessibility bus if need be.
    explicit ScreenReader(const QDBusConnection& session);
    ~ScreenReader() override;
    Q_DISABLE_COPY_MOVE(ScreenReader)

    // Whether any program shows a button of that name.
    [[nodiscard]] bool shows(const QString& name) const;
    // Presses the first such button, outer ones first. Returns false if there is none.
    bool press(const QString& name);
    // The number of changes since construction.
    [[nodiscard]] int changes() const { return changeCount; }

private:
    Q_SLOT void noteChange() { ++changeCount; }

    [[nodiscard]] std::optional<AccessibleReference> find(const AccessibleReference& from,
                                                          const QString& name, int depth) const;
    [[nodiscard]] QList<AccessibleReference> childrenOf(const AccessibleReference& parent) const;
    [[nodiscard]] QString nameOf(const AccessibleReference& object) const;
    [[nodiscard]] bool isShownButton(const AccessibleReference& object) const;
    [[nodiscard]] QDBusMessage call(const AccessibleReference& object, const QString& interface,
                                    const QString& method, const QVariantList& arguments = {}) const;

    QDBusConnection bus;
    int changeCount = 0;
};
