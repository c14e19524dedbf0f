#pragma once

#include "platform/store/NSManagedObjectContext.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

// Keeps trying to save what the catalogue's store refused, and says so to the user. Screens go on as if it
// were saved: it stays in memory, and lists show it as soon as it is stored.
class CatalogueKeeper : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application's delegate owns it")
    Q_PROPERTY(QString notice READ notice NOTIFY changed FINAL)

public:
    using QObject::QObject;

    // Watches the saves of `context`, which must outlive this object's use. Called once.
    void watch(NSManagedObjectContext& context);

    // What the user should know of changes that are not saved; empty while all is saved.
    [[nodiscard]] QString notice() const { return text; }
    // How many changes the store refused; 0 while all is saved.
    [[nodiscard]] std::size_t refusedCount() const { return refused; }
    // One line for each of them, such as "Movies: Zodiac".
    [[nodiscard]] QStringList refusedChanges() const;

    // Tries once more if something was refused, without waiting for a lock. Also called every three seconds
    // by this object itself.
    void tryAgain();
    // Tries until everything is saved or the time is over, and blocks meanwhile.
    void insist(std::chrono::milliseconds longest);

Q_SIGNALS:
    void changed();

private:
    void note(const Status& saved);
    void waitAndTry();

    NSManagedObjectContext* watched = nullptr;
    QString text;
    std::size_t refused = 0;
    bool isWaiting = false;
};
