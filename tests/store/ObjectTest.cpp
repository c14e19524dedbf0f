#include "tests/store/TestStore.h"

#include <QTimeZone>
#include <gtest/gtest.h>

namespace {

TEST(NSManagedObject, keepsEveryValueThroughTheStore)
{
    const auto moment = QDateTime(QDate(2021, 3, 5), QTime(20, 15, 0, 123), QTimeZone("America/New_York"));
    const std::pair<const char*, AttributeValue> cases[] = {
        {"title", QStringLiteral("Am\u00e9lie \U0001F3AC\n^'\"")},
        {"title", QString(QChar(0)) + QStringLiteral("after")},
        {"title", QString()},
        {"title", {}},
        {"year", std::numeric_limits<qint16>::min()},
        {"year", std::numeric_limits<qint16>::max()},
        {"seen", moment},
        {"seen", QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC)},
        {"seen", {}},
        {"cover", QByteArray("\0\xff", 2)},
        {"cover", QByteArray()},
        {"cover", {}},
    };
    for (const auto& [name, value] : cases) {
        TestStore store;
        const auto key = QString::fromUtf8(name);
        const auto film = store.context->insert<Films>();
        film->setBinary(Films::Cover, QByteArray("old"));
        film->setValueForKey(value, key);
        EXPECT_EQ(film->valueForKey(key), value) << name;
        ASSERT_TRUE(store.context->save());
        EXPECT_EQ(film->valueForKey(key), value) << name;
        store.reopen();
        const auto read = store.all().front();
        EXPECT_EQ(read->valueForKey(key), value) << name;
        read->setText(Films::Genre, QStringLiteral("unpacked"));
        EXPECT_EQ(read->valueForKey(key), value) << name;
        ASSERT_TRUE(store.context->save());
        store.reopen();
        EXPECT_EQ(store.all().front()->valueForKey(key), value) << name;
        store.context->deleteObject(store.all().front());
        ASSERT_TRUE(store.context->save());
    }
}

TEST(NSManagedObject, leavesBinaryValuesInTheStoreUntilAskedFor)
{
    TestStore store;
    store.context->insert<Films>()->setBinary(Films::Cover, QByteArray("first"));
    ASSERT_TRUE(store.context->save());
    store.reopen();
    const auto film = store.all().front();
    EXPECT_EQ(TestStore::saved("UPDATE Films_cover SET cover = x'6e6577' RETURNING 1"), 1);
    EXPECT_EQ(film->binary(Films::Cover), QByteArray("new"));
    film->setBinary(Films::Cover, QByteArray("unsaved"));
    EXPECT_EQ(film->binary(Films::Cover), QByteArray("unsaved"));
    EXPECT_EQ(TestStore::saved("SELECT COUNT(*) FROM Films_cover WHERE cover = x'6e6577'"), 1);
}

TEST(NSManagedObject, isNotChangedByTheValueItHas)
{
    TestStore store;
    const auto film = store.add(QStringLiteral("Alien"), 1979);
    ASSERT_TRUE(store.context->save());
    film->setText(Films::Title, QStringLiteral("Alien"));
    film->setDate(Films::Seen, defaultSeen.toLocalTime());
    EXPECT_FALSE(store.context->hasChanges());
}

} // namespace
