#pragma once

#include "platform/foundation/TemporaryFolder.h"
#include "platform/services/AddressOpener.h"
#include "platform/services/Camera.h"
#include "platform/services/Documents.h"
#include "platform/services/InterfaceStyle.h"
#include "platform/services/Mail.h"
#include "platform/services/Pasteboard.h"
#include "platform/services/Printer.h"
#include "platform/services/ReviewPrompt.h"
#include "platform/services/TextMessages.h"

#include <memory>

// Everything the device supplies beside screen and storage. One is current from its construction to its
// destruction; the services of a current device are never null.
struct Device
{
    Device();
    ~Device();
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    // The one in force; none is a programming error that ends the program.
    [[nodiscard]] static Device& current();

    // Major and minor version of the platform; below 13, 13.4 and 14 screens take their fallbacks.
    double systemVersion = 14;

    // The platform's directory for temporary files. It is the program's own and goes with the device.
    TemporaryFolder temporaryDirectory;

    std::unique_ptr<Mail> mail;
    std::unique_ptr<TextMessages> textMessages;
    std::unique_ptr<Documents> documents;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<Printer> printer;
    std::unique_ptr<Camera> camera;
    std::unique_ptr<InterfaceStyle> interfaceStyle;
    std::unique_ptr<AddressOpener> addressOpener;
    std::unique_ptr<ReviewPrompt> reviewPrompt;
};

// The desktop or phone that the program runs on. Needs a QApplication.
[[nodiscard]] std::unique_ptr<Device> makeLinuxDevice();
