#pragma once

#include <QStringList>
#include <chrono>
#include <functional>

class QObject;
struct PrintTarget;

// What the print dialog and its queues are fed by, asked through its own commands, which can be ended where
// it doesn't answer. Whoever waits hears once and later, unless `owner` is gone by then.

// Tells whether the spooler answered within `patience` and has queues.
void askForQueues(QObject& owner, std::chrono::milliseconds patience, std::function<void(bool)> told);

// The command that hands the file at `path` to the queue of `target` as it stands.
[[nodiscard]] QStringList spoolCommand(const PrintTarget& target, const QString& title, const QString& path);

// Runs that command. Told the empty text when the queue took the file, else a sentence for people.
void spool(QObject& owner, const PrintTarget& target, const QString& title, const QString& path,
           std::function<void(const QString& problem)> told);
