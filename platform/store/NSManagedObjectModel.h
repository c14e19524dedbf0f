#pragma once

#include "platform/store/NSEntityDescription.h"

#include <QByteArrayList>

// One step forward of the stored form. `statements` run in order, in one transaction; once released they
// never change, so a step must not be computed from what the model says today.
struct NSMigration
{
    QString name;
    QByteArrayList statements;
};

// Everything a store knows of what it holds. Containers refer to it: it must outlive them.
struct NSManagedObjectModel
{
    // Marks the files of this model; not 0.
    qint32 applicationId = 0;
    std::vector<NSEntityDescription> entities;
    // From an empty file to the present form: the one that `createStatements` of StoreSchema.h gives.
    std::vector<NSMigration> migrations;

    // The version of files that went through all migrations.
    [[nodiscard]] int version() const { return static_cast<int>(migrations.size()); }
};
