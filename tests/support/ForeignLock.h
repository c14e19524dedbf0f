#pragma once

#include "platform/store/Database.h"

#include <gtest/gtest.h>

// Another program that holds the write lock of the catalogue while the object lives.
class ForeignLock
{
public:
    ForeignLock()
        : other(Database::open(qEnvironmentVariable("XDG_DATA_HOME") +
                                   QStringLiteral("/marrowvale/Marrowvale.sqlite"),
                               Database::Access::ReadWrite)
                    .value())
    {
        EXPECT_TRUE(other->run("BEGIN IMMEDIATE"));
    }

private:
    std::unique_ptr<Database> other;
};
