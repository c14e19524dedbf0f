#pragma once

#include "platform/services/UIPrintFormatter.h"
#include "platform/services/UIPrintInfo.h"

// The print dialog: set what to print, then present it.
class UIPrintInteractionController
{
public:
    // Told later and once. `completed`: the job was sent; neither that nor an error: cancelled.
    using CompletionHandler = Printer::Told;

    // The one for all screens.
    [[nodiscard]] static UIPrintInteractionController& sharedPrintController();

    // What the next job prints; presenting it uses it up.
    std::optional<UIPrintFormatter> printFormatter;
    UIPrintInfo printInfo;
    bool showsNumberOfCopies = true;

    // Asks the user where to print and does so. Answers whether it could begin: not without a formatter, nor
    // while another job is printing; `completion` isn't told then.
    bool present(bool animated, CompletionHandler completion);
    // Takes the dialog away, which cancels the job; one that is sent already goes on.
    void dismiss(bool animated);

    // From presenting to completion.
    [[nodiscard]] bool isPrinting() const { return printing; }

private:
    bool printing = false;
};
