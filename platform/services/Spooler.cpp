#include "platform/services/Spooler.h"

#include "platform/services/Command.h"
#include "platform/services/PrintTarget.h"

namespace {

constexpr std::chrono::seconds patienceWithQueues{60};

QString complaintOf(const CommandOutcome& outcome)
{
    if (outcome.succeeded())
        return {};
    if (outcome.end == CommandOutcome::End::NotStarted)
        return QStringLiteral("This device lacks the program that hands pages to printers.");
    const QString complaint = QString::fromLocal8Bit(outcome.complaint).trimmed();
    return complaint.isEmpty() ? QStringLiteral("The printer did not take the pages.") : complaint;
}

} // namespace

void askForQueues(QObject& owner, std::chrono::milliseconds patience, std::function<void(bool)> told)
{
    const auto answered = [tell = std::move(told)](const CommandOutcome& queues) {
        tell(queues.succeeded() && !queues.output.isEmpty());
    };
    runCommand(owner, {QStringLiteral("lpstat"), QStringLiteral("-a")}, {.patience = patience}, answered);
}

QStringList spoolCommand(const PrintTarget& target, const QString& title, const QString& path)
{
    QStringList line{QStringLiteral("lp"), QStringLiteral("-d"),           target.queue,
                     QStringLiteral("-n"), QString::number(target.copies), QStringLiteral("-t"),
                     title.simplified()};
    for (const QString& option : target.options)
        line << QStringLiteral("-o") << option;
    return line << path;
}

void spool(QObject& owner, const PrintTarget& target, const QString& title, const QString& path,
           std::function<void(const QString& problem)> told)
{
    runCommand(owner, spoolCommand(target, title, path), {.patience = patienceWithQueues},
               [tell = std::move(told)](const CommandOutcome& outcome) { tell(complaintOf(outcome)); });
}
