#pragma once

#include "platform/foundation/Result.h"

#include <memory>

// Brings a store file to rest: two seconds after the last save, on another thread, its log is moved into it
// and emptied. From then on the file alone is the whole store, and a copy of it is a backup. When others use
// the store just then, this is tried again after the same time. What is left in the log when the object is
// destroyed is moved at once; destroy it after the connection that saved. Use it on the main thread.
class StoreRest
{
public:
    // A log that a killed program left is moved, too.
    explicit StoreRest(QString path);
    ~StoreRest();
    StoreRest(const StoreRest&) = delete;
    StoreRest& operator=(const StoreRest&) = delete;

    void noteSave(const Status& saved);

private:
    struct State;

    static void waitForRest(const std::shared_ptr<State>& state);
    static void moveLog(const std::shared_ptr<State>& state);

    std::shared_ptr<State> state;
};
