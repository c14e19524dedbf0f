#include "platform/foundation/Result.h"

#include <QStringList>

QString NSError::debugText() const
{
    QStringList entries;
    for (auto entry = userInfo.cbegin(); entry != userInfo.cend(); ++entry)
        entries << entry.key() + QStringLiteral(" = ") + entry.value().toString();
    return localizedDescription + QStringLiteral(", {") + entries.join(QStringLiteral("; ")) +
           QStringLiteral("}");
}
