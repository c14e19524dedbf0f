#include "platform/services/UITraitCollection.h"

#include "platform/services/Device.h"

UIUserInterfaceStyle currentUserInterfaceStyle()
{
    return Device::current().interfaceStyle->isDark() ? UIUserInterfaceStyle::Dark
                                                      : UIUserInterfaceStyle::Light;
}
