#pragma once

#include "platform/services/AddressOpener.h"

// Through the desktop's defaults.
class LinuxAddressOpener : public AddressOpener
{
public:
    bool open(const QUrl& address) override;
};
