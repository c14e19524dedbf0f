#pragma once

#include <QPageLayout>
#include <QStringList>

class QPrinter;

// Where a user wants a job to go: to a queue, or into a file.
struct PrintTarget
{
    // As the print dialog has set up `printer`.
    [[nodiscard]] static PrintTarget of(const QPrinter& printer);

    // Empty: the queue.
    QString file = {};
    QString queue = {};
    QPageLayout layout = {};
    int copies = 1;
    // As the spooler names them, such as "sides=two-sided-long-edge".
    QStringList options = {};
};
