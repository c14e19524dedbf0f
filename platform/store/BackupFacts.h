#pragma once

#include "platform/store/NSManagedObjectModel.h"

enum class BackupState {
    // Every page and row is as it should be.
    Sound,
    Damaged,
    // Made by a newer version of this program.
    Newer,
    // The content is not a store of this program.
    Foreign
};

struct BackupFacts
{
    BackupState state = BackupState::Sound;
    // How many records the counted entity has; 0 where that can't be said.
    qint64 records = 0;

    bool operator==(const BackupFacts&) const = default;
};

// Reads the whole file at `path`, which needs no log, and changes nothing. `counted` is the name of an
// entity; empty: none is counted. May be called on any thread.
[[nodiscard]] BackupFacts inspectBackup(const QString& path, const NSManagedObjectModel& model,
                                        const QString& counted);

// Says why a backup in that state can't be restored; empty if it can.
[[nodiscard]] QString sentenceFor(BackupState state);
