#pragma once

#include "platform/foundation/TemporaryFolder.h"
#include "platform/services/Printer.h"

// A print job on its way: whoever holds it last without telling how it went has cancelled it.
class PendingPrint
{
public:
    PendingPrint(PrintJob job, Printer::Told told);
    ~PendingPrint();
    PendingPrint(const PendingPrint&) = delete;
    PendingPrint& operator=(const PendingPrint&) = delete;

    const PrintJob job;
    // Of the job's own, private to the user; goes with it.
    [[nodiscard]] QString folder() { return directory.path(); }

    // The empty `problem`: it was sent.
    void end(const QString& problem);

private:
    void tell(bool completed, const std::optional<NSError>& error);

    TemporaryFolder directory;
    Printer::Told told;
};
