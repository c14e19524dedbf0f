#include "platform/services/AddressHandlers.h"

// GIO has members named `signals`: the one file that includes it, and it relies on QT_NO_KEYWORDS.
#include <gio/gio.h>

bool hasHandlerFor(const char* scheme)
{
    GAppInfo* handler = g_app_info_get_default_for_uri_scheme(scheme);
    if (handler == nullptr)
        return false;
    g_object_unref(handler);
    return true;
}

bool openInHandler(const QString& address)
{
    return g_app_info_launch_default_for_uri(address.toUtf8().constData(), nullptr, nullptr) != FALSE;
}
