#pragma once

#include "platform/services/Device.h"

// The device that the program really runs on, but for what would lead out of the tour: the file dialog picks
// by itself, addresses lead nowhere, nothing is printed, the camera sees one picture, nobody asks for a
// review, and the tour decides on light or dark and on whether there are text messages.
class TourDevice
{
public:
    // What is saved goes into `folder`.
    explicit TourDevice(const QString& folder);

    // The file that every following file dialog picks.
    void setPickedFile(const QString& path);
    // False until set.
    void setDark(bool dark);
    void setCanSendText(bool can);
    // How often something was sent to the printer.
    [[nodiscard]] int printedJobs() const;

private:
    struct SelfAnsweringDocuments;
    struct ToldTextMessages;
    struct ToldInterfaceStyle;
    struct DeafAddressOpener;
    struct PaperlessPrinter;
    struct StillCamera;
    struct SilentReviewPrompt;

    std::unique_ptr<Device> device = makeLinuxDevice();
    SelfAnsweringDocuments* documents;
    ToldTextMessages* textMessages;
    ToldInterfaceStyle* interfaceStyle;
    PaperlessPrinter* printer;
};
