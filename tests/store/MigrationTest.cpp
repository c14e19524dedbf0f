#include "tests/store/TestStore.h"

#include <gtest/gtest.h>

namespace {

TEST(Migration, aStepThatFailsLeavesNothingOfItself)
{
    ASSERT_TRUE(openStoreFile(TestStore::path(), testModel()));
    auto model = testModel();
    model.migrations.push_back({QStringLiteral("add country"),
                                {"ALTER TABLE Films ADD COLUMN country TEXT", "UPDATE Nothing SET x = 1"}});
    NSPersistentContainer container(QStringLiteral("Films"), model);
    const auto loaded = container.loadPersistentStores();
    ASSERT_FALSE(loaded);
    EXPECT_EQ(loaded.error().userInfo.value(QStringLiteral("migration")).toString(),
              QStringLiteral("add country"));
    EXPECT_EQ(TestStore::saved("PRAGMA user_version"), 1);
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM pragma_table_info('Films') WHERE name = 'country'"), 0);
    EXPECT_TRUE(openStoreFile(TestStore::path(), testModel()));
}

TEST(Schema, keepsStrangersFromStoringWhatTheModelCannotHold)
{
    const TestStore store;
    const auto database = Database::open(TestStore::path(), Database::Access::ReadWrite);
    for (const auto* values : {"title) VALUES (x'00')", "year) VALUES (32768)", "year) VALUES ('x')",
                               "year) VALUES (1.5)", "year) VALUES (NULL)", "seen) VALUES ('2001-01-01')"})
        EXPECT_FALSE(database.value()->run(QByteArray("INSERT INTO Films (") + values)) << values;
    EXPECT_TRUE(database.value()->run("INSERT INTO Films (title, year, seen) VALUES ('x', 5, -5)"));
}

} // namespace
