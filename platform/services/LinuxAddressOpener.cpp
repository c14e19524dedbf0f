#include "platform/services/LinuxAddressOpener.h"

#include "platform/services/AddressHandlers.h"

bool LinuxAddressOpener::open(const QUrl& address)
{
    return openInHandler(QString::fromLatin1(address.toEncoded()));
}
