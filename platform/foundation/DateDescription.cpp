#include "platform/foundation/DateDescription.h"

QString descriptionOf(const QDateTime& date)
{
    return date.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss '+0000'"));
}
