#include "platform/services/LinuxAddressOpener.h"

#include <QDesktopServices>

bool LinuxAddressOpener::open(const QUrl& address)
{
    return QDesktopServices::openUrl(address);
}
