#pragma once

#include <QByteArray>
#include <QStringList>
#include <chrono>
#include <functional>

class QObject;

// How a program that was run beside ours ended.
struct CommandOutcome
{
    enum class End { Finished, Late, NotStarted };
    End end;
    // -1 unless it ended by itself.
    int exitCode;
    // What it wrote to standard output and standard error; both empty where it may be left running.
    QByteArray output;
    QByteArray complaint;

    [[nodiscard]] bool succeeded() const { return end == End::Finished && exitCode == 0; }
};

struct CommandLimits
{
    std::chrono::milliseconds patience;
    // Whether one that is late goes on, until `owner` goes, or is ended at once.
    bool leaveRunning = false;
};

// Runs the program that `line` starts with, its arguments as they stand, without a shell and without input.
// `told` hears of its end, or that it is late, once and later; it hears nothing once `owner` is gone.
void runCommand(QObject& owner, const QStringList& line, const CommandLimits& limits,
                std::function<void(const CommandOutcome&)> told);
