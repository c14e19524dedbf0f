#pragma once

#include "platform/services/PdfRendering.h"

#include <QStringList>

class QPrinter;

// Where a user wants a job to go: to a queue, or into a file.
struct PrintTarget
{
    // As the print dialog has set up `printer`. Pages that the queue is to choose are among the options.
    [[nodiscard]] static PrintTarget of(const QPrinter& printer);

    // Empty: the queue.
    QString file = {};
    QString queue = {};
    PageSetup pages = {};
    // This and the options are heeded by a queue alone: a file gets its pages once, in their order.
    int copies = 1;
    // As the spooler names and reads them, such as "sides=two-sided-long-edge".
    QStringList options = {};
};
