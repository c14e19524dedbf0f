#include "platform/services/Command.h"

#include <QProcess>
#include <QTimer>

namespace {

class RunningCommand : public QObject
{
public:
    RunningCommand(QObject& owner, const CommandLimits& limits,
                   std::function<void(const CommandOutcome&)> told)
        : QObject(&owner)
        , limits(limits)
        , told(std::move(told))
    {
        process.setStandardInputFile(QProcess::nullDevice());
        if (limits.leaveRunning) {
            // A pipe would break under it when this program ends.
            process.setStandardOutputFile(QProcess::nullDevice());
            process.setStandardErrorFile(QProcess::nullDevice());
        }
        connect(&process, &QProcess::finished, this, &RunningCommand::finished);
        connect(
            &process, &QProcess::errorOccurred, this,
            [this](QProcess::ProcessError error) {
                if (error == QProcess::FailedToStart)
                    finish({CommandOutcome::End::NotStarted, -1, {}, process.errorString().toUtf8()});
            },
            Qt::QueuedConnection);
        connect(&clock, &QTimer::timeout, this, &RunningCommand::runOutOfPatience);
        clock.setSingleShot(true);
    }

    ~RunningCommand() override
    {
        process.disconnect();
        process.kill();
        process.waitForFinished();
    }

    void start(const QStringList& line)
    {
        clock.start(limits.patience);
        process.start(line.first(), line.mid(1));
    }

private:
    using End = CommandOutcome::End;

    void finished(int exitCode, QProcess::ExitStatus status)
    {
        CommandOutcome outcome{End::Finished, status == QProcess::NormalExit ? exitCode : -1, {}, {}};
        if (!limits.leaveRunning) {
            outcome.output = process.readAllStandardOutput();
            outcome.complaint = process.readAllStandardError();
        }
        finish(outcome);
    }

    void runOutOfPatience()
    {
        if (!limits.leaveRunning) {
            finish({End::Late, -1, {}, {}});
        } else if (const auto tell = std::exchange(told, nullptr)) {
            tell({End::Late, -1, {}, {}});
        }
    }

    void finish(const CommandOutcome& outcome)
    {
        clock.stop();
        deleteLater();
        if (const auto tell = std::exchange(told, nullptr))
            tell(outcome);
    }

    CommandLimits limits;
    std::function<void(const CommandOutcome&)> told;
    QTimer clock;
    QProcess process;
};

} // namespace

void runCommand(QObject& owner, const QStringList& line, const CommandLimits& limits,
                std::function<void(const CommandOutcome&)> told)
{
    auto* command = new RunningCommand(owner, limits, std::move(told));
    command->start(line);
}
