#include "platform/services/UIPrintInteractionController.h"

#include "platform/services/Device.h"

UIPrintInteractionController& UIPrintInteractionController::sharedPrintController()
{
    static UIPrintInteractionController shared;
    return shared;
}

bool UIPrintInteractionController::present(bool /*animated*/, CompletionHandler completion)
{
    if (printing || !printFormatter)
        return false;
    printing = true;
    const PrintJob job{printInfo.jobName, std::exchange(printFormatter, std::nullopt)->content(),
                       showsNumberOfCopies};
    const auto finish = [this, tell = std::move(completion)](bool completed,
                                                             const std::optional<NSError>& error) {
        printing = false;
        tell(completed, error);
    };
    Device::current().printer->print(job, finish);
    return true;
}

void UIPrintInteractionController::dismiss(bool /*animated*/)
{
    Device::current().printer->cancelAsking();
}
