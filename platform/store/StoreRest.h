#pragma once

#include "platform/foundation/Result.h"

#include <QObject>
#include <QString>

// Brings a store file to rest: two seconds after the last save, on another thread, its log is moved into it
// and emptied. From then on the file alone is the whole store, and a copy of it is a backup. When others use
// the store just then, this is tried again after the same time. What is left in the log when the object is
// destroyed is moved at once; destroy it after the connection that saved. Use it on the main thread.
class StoreRest : public QObject
{
    Q_OBJECT

public:
    // A log that a killed program left is moved, too.
    explicit StoreRest(QString path);
    ~StoreRest() override;

    void noteSave(const Status& saved);

private:
    void waitForRest();
    void moveLog();
    void finishMove(quint64 movedSaves);

    QString path;
    // Saves since the log was last empty, as far as this program knows.
    quint64 saves = 0;
    int quietTicks = 0;
    bool isWaiting = false;
};
