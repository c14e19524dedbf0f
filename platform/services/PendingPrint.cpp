#include "platform/services/PendingPrint.h"

PendingPrint::PendingPrint(PrintJob job, Printer::Told told)
    : job(std::move(job))
    , told(std::move(told))
{
}

PendingPrint::~PendingPrint()
{
    tell(false, std::nullopt);
}

void PendingPrint::end(const QString& problem)
{
    tell(problem.isEmpty(), problem.isEmpty() ? std::nullopt : std::optional(NSError{problem, {}}));
}

void PendingPrint::tell(bool completed, const std::optional<NSError>& error)
{
    if (const auto once = std::exchange(told, nullptr))
        once(completed, error);
}
