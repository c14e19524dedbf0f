#include "platform/services/Device.h"

#include "platform/foundation/Console.h"

namespace {

Device* currentDevice = nullptr;

} // namespace

Device::Device()
{
    currentDevice = this;
}

Device::~Device()
{
    if (currentDevice == this)
        currentDevice = nullptr;
}

Device& Device::current()
{
    if (currentDevice == nullptr)
        fatalError(QStringLiteral("There is no device"));
    return *currentDevice;
}
