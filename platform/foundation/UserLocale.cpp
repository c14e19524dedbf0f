#include "platform/foundation/UserLocale.h"

#include <QLocale>
#include <QTimeZone>
#include <unicode/uloc.h>

QByteArray UserLocale::identifier()
{
    QByteArray identifier(ULOC_FULLNAME_CAPACITY, '\0');
    UErrorCode status = U_ZERO_ERROR;
    const auto length = uloc_forLanguageTag(QLocale().bcp47Name().toUtf8().constData(), identifier.data(),
                                            static_cast<int32_t>(identifier.size()), nullptr, &status);
    identifier.truncate(U_SUCCESS(status) ? length : 0);
    return identifier;
}

QString UserLocale::timeZone()
{
    return QString::fromUtf8(QTimeZone::systemTimeZoneId());
}
