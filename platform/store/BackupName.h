#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

// Why a copy of the store was made.
enum class BackupReason { Automatic, BeforeImport, BeforeMigration, BeforeRestore };

// The name of a backup's file, such as "2026-11-24T04-04-39.123Z-before-import.sqlite". Nothing else is a
// backup: whatever has another name belongs to the user and is left alone.
struct BackupName
{
    // UTC, to the millisecond, in the years 1 to 9999.
    QDateTime moment;
    BackupReason reason = BackupReason::Automatic;

    [[nodiscard]] QString fileName() const;
    // Null unless `fileName` is exactly what `fileName()` returns for some name.
    [[nodiscard]] static std::optional<BackupName> parse(const QString& fileName);

    bool operator==(const BackupName&) const = default;
};
