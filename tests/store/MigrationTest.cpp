#include "tests/store/TestStore.h"

#include <gtest/gtest.h>

namespace {

// The model at its second version: films also have a country, and the steps that lead there.
NSManagedObjectModel laterModel(const QByteArrayList& secondStep)
{
    auto model = testModel();
    model.entities.front().attributes.push_back({QStringLiteral("country"), AttributeType::Text, {}});
    model.migrations.push_back({QStringLiteral("add country"), secondStep});
    return model;
}

const QByteArrayList addCountry{"ALTER TABLE Films ADD COLUMN country TEXT",
                                "UPDATE Films SET country = 'unknown'"};

// As the first version left it: written out, so that it stays the same whatever becomes of the code.
void makeFirstVersion()
{
    QDir().mkpath(TestStore::directory());
    const auto database = Database::open(TestStore::path(), Database::Access::ReadWrite);
    for (const auto* statement : {"CREATE TABLE Films (id INTEGER PRIMARY KEY, title TEXT, year INTEGER "
                                  "DEFAULT 0, seen INTEGER, genre TEXT)",
                                  "CREATE TABLE Films_cover (record INTEGER PRIMARY KEY REFERENCES Films "
                                  "(id) ON DELETE CASCADE, cover BLOB "
                                  "NOT NULL)",
                                  "CREATE TABLE Tags (id INTEGER PRIMARY KEY, label TEXT)",
                                  "INSERT INTO Films VALUES (7, 'Alien', 1979, 1614975300123, NULL)",
                                  "INSERT INTO Films_cover VALUES (7, x'FFD8')",
                                  "PRAGMA application_id = 0x54455354", "PRAGMA user_version = 1"})
        ASSERT_TRUE(database.value()->run(statement)) << statement;
}

TEST(Migration, bringsAnOldStoreForward)
{
    makeFirstVersion();
    const auto model = laterModel(addCountry);
    for (int opening = 0; opening < 2; ++opening) {
        NSPersistentContainer container(QStringLiteral("Films"), model);
        ASSERT_TRUE(container.loadPersistentStores());
        const auto film = container.viewContext().fetch<Films>(Films::fetchRequest()).value().front();
        EXPECT_EQ(film->title(), QStringLiteral("Alien"));
        EXPECT_EQ(film->date(Films::Seen)->toMSecsSinceEpoch(), 1614975300123);
        EXPECT_EQ(film->binary(Films::Cover), QByteArray("\xff\xd8"));
        EXPECT_EQ(film->valueForKey(QStringLiteral("country")), AttributeValue(QStringLiteral("unknown")));
    }
    EXPECT_EQ(TestStore::saved("PRAGMA user_version"), 2);
}

TEST(Migration, aStepThatFailsLeavesNothingOfItself)
{
    makeFirstVersion();
    const auto model = laterModel(addCountry + QByteArrayList{"UPDATE Nothing SET x = 1"});
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
