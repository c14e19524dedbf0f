#pragma once

#include "platform/services/Printer.h"

#include <QObject>
#include <QPointer>
#include <chrono>

class PendingPrint;
class QPrintDialog;
struct PageSetup;
struct PrintTarget;

// The desktop's print dialog and the spooler's own commands. The dialog asks the spooler for its queues and
// waits for as long as that takes, so a command, which can be ended, asks first; where no queue answers, the
// user is offered to save the pages as a PDF file.
class LinuxPrinter : public Printer
{
public:
    // `patience`: how long the spooler has for answering.
    explicit LinuxPrinter(std::chrono::milliseconds patience = std::chrono::seconds(4));
    ~LinuxPrinter() override;

    void print(const PrintJob& job, Told told) override;
    void cancelAsking() override;

private:
    using Job = std::shared_ptr<PendingPrint>;

    void openDialog();
    void closeDialog();
    void send(const Job& job, const PrintTarget& target);
    void offerAsFile(const Job& job);
    // Hands the path of the job's pages on, once there are any.
    void withPages(const Job& job, const PageSetup& setup, const std::function<void(const QString&)>& then);

    std::chrono::milliseconds patience;
    // What the user is being asked about; null: nothing.
    Job asking;
    // What the user is, or will be, offered to save as a file.
    std::weak_ptr<PendingPrint> offered;
    QPointer<QPrintDialog> dialog;
    // Owns what is under way.
    QObject works;
};
