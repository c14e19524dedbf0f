#include "platform/services/Device.h"
#include "platform/services/LinuxAddressOpener.h"
#include "platform/services/LinuxCamera.h"
#include "platform/services/LinuxDocuments.h"
#include "platform/services/LinuxMail.h"
#include "platform/services/LinuxPasteboard.h"
#include "platform/services/LinuxPrinter.h"
#include "platform/services/LinuxReviewPrompt.h"
#include "platform/services/LinuxTextMessages.h"
#include "platform/services/PortalInterfaceStyle.h"

#include <QFile>

namespace {

// Without an address the bus library would start a bus of its own, which takes long and serves nobody.
QDBusConnection sessionBusIfAny()
{
    const QString runtimeBus = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") || QFile::exists(runtimeBus))
        return QDBusConnection::sessionBus();
    return QDBusConnection(QString());
}

} // namespace

std::unique_ptr<Device> makeLinuxDevice()
{
    auto device = std::make_unique<Device>();
    device->mail = std::make_unique<LinuxMail>(sessionBusIfAny());
    device->textMessages = std::make_unique<LinuxTextMessages>();
    device->documents = std::make_unique<LinuxDocuments>();
    device->pasteboard = std::make_unique<LinuxPasteboard>();
    device->printer = std::make_unique<LinuxPrinter>();
    device->camera = std::make_unique<LinuxCamera>();
    device->interfaceStyle = std::make_unique<PortalInterfaceStyle>(sessionBusIfAny());
    device->addressOpener = std::make_unique<LinuxAddressOpener>();
    device->reviewPrompt = std::make_unique<LinuxReviewPrompt>();
    return device;
}
