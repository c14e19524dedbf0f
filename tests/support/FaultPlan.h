#pragma once

// What goes wrong in a run, once at its operation `number` or from there on.
enum class Fault {
    None,
    Error,
    ErrorForGood,
    DiskFull,
    DiskFullForGood,
    ShortWrite,
    FailedSync,
    FailedOpen,
    NoMemory,
    NoMemoryForGood
};

// Counts the operations that its fault can strike, and says which of them fail.
class FaultPlan
{
public:
    enum class Operation { Open, Read, Write, Sync, Other, Allocation };

    // The fault strikes at the operation `number`, counted from 0 now.
    void arm(Fault what, int number)
    {
        *this = {};
        fault = what;
        at = number;
    }
    // Nothing fails any more.
    void disarm() { fault = Fault::None; }

    // To be called at each operation: the fault that it is to fail with, if any.
    [[nodiscard]] Fault next(Operation operation)
    {
        if (!canStrike(operation))
            return Fault::None;
        const int number = count++;
        const bool strikes = lasts() ? number >= at : number == at;
        hasStruck = hasStruck || strikes;
        return strikes ? fault : Fault::None;
    }
    // Whether the fault struck since it was armed.
    [[nodiscard]] bool struck() const { return hasStruck; }

private:
    [[nodiscard]] bool lasts() const
    {
        return fault == Fault::ErrorForGood || fault == Fault::DiskFullForGood ||
               fault == Fault::NoMemoryForGood;
    }
    [[nodiscard]] bool canStrike(Operation operation) const
    {
        switch (fault) {
        case Fault::None:
            return false;
        case Fault::Error:
        case Fault::ErrorForGood:
            return operation != Operation::Allocation;
        case Fault::DiskFull:
        case Fault::DiskFullForGood:
        case Fault::ShortWrite:
            return operation == Operation::Write;
        case Fault::FailedSync:
            return operation == Operation::Sync;
        case Fault::FailedOpen:
            return operation == Operation::Open;
        case Fault::NoMemory:
        case Fault::NoMemoryForGood:
            return operation == Operation::Allocation;
        }
        return false;
    }

    Fault fault = Fault::None;
    int at = 0;
    int count = 0;
    bool hasStruck = false;
};
