#include "tests/store/TestStore.h"

#include <gtest/gtest.h>

namespace {

TEST(Saving, withoutChangesTouchesNothing)
{
    TestStore store;
    store.add(QStringLiteral("Alien"));
    ASSERT_TRUE(store.context->save());
    const auto watcher = Database::open(TestStore::path(), Database::Access::ReadWrite).value().release();
    const std::unique_ptr<Database> owner(watcher);
    const auto version = [&] { return watcher->number("PRAGMA data_version").value(); };
    const auto before = version();
    ASSERT_TRUE(store.context->save());
    ASSERT_EQ(store.all().size(), 1U);
    ASSERT_TRUE(store.context->save());
    EXPECT_EQ(version(), before);
    store.add(QStringLiteral("Aliens"));
    ASSERT_TRUE(store.context->save());
    EXPECT_NE(version(), before) << "the watcher does watch";
}

// SQLite may drop a statement or the whole transaction; either way the next save that can succeed saves it
// all.
class FailedSave : public testing::TestWithParam<bool>
{
};

TEST_P(FailedSave, losesNothing)
{
    TestStore store;
    const auto changed = store.add(QStringLiteral("before"));
    const auto deleted = store.add(QStringLiteral("deleted"));
    ASSERT_TRUE(store.context->save());

    changed->setText(Films::Title, QStringLiteral("after"));
    store.context->deleteObject(deleted);
    const auto written = store.add(QStringLiteral("written"));
    ASSERT_EQ(titlesOf(store.all()), QStringLiteral("after written"));
    written->setBinary(Films::Cover, QByteArray(100'000, 'x'));
    const auto dropped = store.add(QStringLiteral("dropped"));
    ASSERT_TRUE(store.connection->run("PRAGMA max_page_count = 1"));
    const auto failed = store.context->save();
    ASSERT_FALSE(failed);
    EXPECT_FALSE(failed.error().localizedDescription.isEmpty());
    EXPECT_TRUE(failed.error().userInfo.contains(QStringLiteral("SQLiteCode")));
    if (const auto isWholeTransactionLost = GetParam(); isWholeTransactionLost) {
        ASSERT_TRUE(store.connection->run("ROLLBACK"));
    }
    store.context->deleteObject(dropped);
    EXPECT_TRUE(store.context->hasChanges());
    EXPECT_FALSE(store.all().empty()) << "what the store has can still be listed";
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films WHERE title IN ('before', 'deleted')"), 2);

    ASSERT_TRUE(store.connection->run("PRAGMA max_page_count = 1000000"));
    ASSERT_TRUE(store.context->save());
    EXPECT_FALSE(store.context->hasChanges());
    EXPECT_EQ(store.all(), (FilmList{changed, written}));
    store.reopen();
    EXPECT_EQ(titlesOf(store.all()), QStringLiteral("after written"));
    EXPECT_EQ(store.all().back()->binary(Films::Cover)->size(), 100'000);
}

INSTANTIATE_TEST_SUITE_P(StatementOrTransaction, FailedSave, testing::Bool());

TEST(BulkSaves, relaxesSavesUntilTheRunEnds)
{
    TestStore store;
    const auto strictness = [&] { return store.connection->number("PRAGMA synchronous").value(); };
    const auto savedOutsideTheLog = [] {
        const auto file = Database::open(TestStore::path(), Database::Access::Untouched);
        const auto films = file.value()->number("SELECT COUNT(*) FROM Films");
        return films ? films.value() : 0; // even the table may be in the log only
    };
    EXPECT_EQ(strictness(), 2);
    {
        const NSManagedObjectContext::BulkSaves run(*store.context);
        for (int line = 0; line < 10; ++line) {
            store.add(QString::number(line));
            ASSERT_TRUE(store.context->save());
        }
        EXPECT_EQ(strictness(), 1);
        EXPECT_LT(savedOutsideTheLog(), 10);
    }
    EXPECT_EQ(strictness(), 2);
    EXPECT_EQ(savedOutsideTheLog(), 10);
    {
        const NSManagedObjectContext::BulkSaves run(*store.context);
        store.add(QStringLiteral("left unsaved"));
        ASSERT_EQ(store.all().size(), 11U);
    }
    EXPECT_EQ(strictness(), 1) << "SQLite changes it only between transactions";
    ASSERT_TRUE(store.context->save());
    EXPECT_EQ(strictness(), 2);
}

TEST(Saving, unsavedChangesAreSeenByFetchesOnly)
{
    TestStore store;
    store.add(QStringLiteral("Alien"), 1979);
    EXPECT_EQ(store.context->count(Films::fetchRequest()).value(), 1);
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films"), 0);
}

} // namespace
