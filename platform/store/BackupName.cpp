#include "platform/store/BackupName.h"

#include <array>

namespace {

const QString momentPattern = QStringLiteral("yyyy-MM-dd'T'hh-mm-ss.zzz'Z'");
constexpr qsizetype momentLength = 24;

// In the order of BackupReason.
const std::array<QString, 4> endings{
    QStringLiteral("-automatic.sqlite"),
    QStringLiteral("-before-import.sqlite"),
    QStringLiteral("-before-migration.sqlite"),
    QStringLiteral("-before-restore.sqlite"),
};

} // namespace

QString BackupName::fileName() const
{
    return moment.toUTC().toString(momentPattern) + endings[static_cast<std::size_t>(reason)];
}

// The round trip also excludes what QDateTime reads leniently.
std::optional<BackupName> BackupName::parse(const QString& fileName)
{
    const auto ending = std::find(endings.begin(), endings.end(), fileName.mid(momentLength));
    if (ending == endings.end())
        return std::nullopt;
    QDateTime moment = QDateTime::fromString(fileName.left(momentLength), momentPattern);
    moment.setTimeSpec(Qt::UTC);
    const BackupName name{moment, static_cast<BackupReason>(ending - endings.begin())};
    if (!moment.isValid() || name.fileName() != fileName)
        return std::nullopt;
    return name;
}
