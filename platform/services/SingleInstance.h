#pragma once

#include <QLockFile>
#include <QObject>

// Lets one program at a time work on what lies in a folder. The first one holds a lock file there, which a
// crash leaves without effect; a later one asks it over the session bus to come to the front, and should end.
// Where the bus is missing, the first one does not hear of that.
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    // Makes `folder`, for its owner alone, if it is missing. `name` is the program's name on the bus.
    SingleInstance(const QString& folder, const QString& name);

    // Whether no other program holds the folder. Also true where no lock can be made, as on a disk that
    // cannot be written to.
    [[nodiscard]] bool isFirst() const { return first; }
    // Asks the first one to show its window. Returns whether it took the message; waits a second at most.
    [[nodiscard]] bool wakeFirst() const;

    // Called over the bus.
    Q_SCRIPTABLE Q_INVOKABLE void Activate(const QVariantMap& platformData);

Q_SIGNALS:
    // Another start asks for the window. Its token lets a window come to the front; it may be empty.
    void activated(const QString& token);

private:
    void listen();

    // A name for each folder, since one session may use several.
    QString busName;
    QLockFile lock;
    bool first;
};
